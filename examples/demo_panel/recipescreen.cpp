// The recipe screen: a page of a real SQLite table shown in the panel's table
// control. Everything here runs on the GUI thread, inside the library's
// call-backs (database results included: the service answers on the thread
// that registered the database).
#include "recipescreen.h"

#include <qgui/xdatabase.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace RecipeScreen {

namespace {
const unsigned kTable = 500;
const unsigned kDb = 1;
const unsigned kQueryPage = 1;
const int kPageRows = 12;
const int kPages = (2000 + kPageRows - 1) / kPageRows;
const int kRecipes = 2000;
unsigned g_window = 0;
bool g_built = false;
int g_page = 0;

Font g_headerFont { nullptr, 20, 600, 0, 0, 0, 0, 0xFFFFFFFFu, 0 };
Font g_cellFont { nullptr, 18, 400, 0, 0, 0, 0, 0xFF1C2733u, 0 };
const View_ListColumn kColumns[5] = {
    { "No.", 80, QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, COL_INT32, nullptr, 0, 0 },
    { "Recipe", 0, QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, COL_STRING, nullptr, 0, 1 },
    { "Sugar (kg)", 150, QGUI_ALIGN_RIGHT | QGUI_ALIGN_VCENTER, COL_DOUBLE, nullptr, 0, 1 },
    { "Water (l)", 150, QGUI_ALIGN_RIGHT | QGUI_ALIGN_VCENTER, COL_DOUBLE, nullptr, 0, 1 },
    { "Changed", 230, QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, COL_DATETIME, nullptr, 0, 0 },
};

void showPage(const std::vector<std::vector<std::string>>& rows)
{
    std::vector<std::vector<View_ListColData>> page;
    for (const auto& row : rows) {
        std::vector<View_ListColData> cells;
        for (const std::string& text : row)
            cells.push_back(View_ListColData { text.c_str(), nullptr, nullptr, 0, 0 });
        page.push_back(cells);
    }
    View_ChangeListCtrlContent(kTable, page);
}

void requestPage(int page)
{
    page = page < 0 ? 0 : page >= kPages ? kPages - 1 : page;
    g_page = page;
    unsigned numbers[3] = { unsigned(kRecipes), unsigned(page + 1), unsigned(kPages) };
    View_ChangeListCtrlBrowseBoxParams(kTable, numbers); // the bar shows what the logic layer says
    const std::string sql = "SELECT no, name, printf('%.2f', sugar), printf('%.1f', water), changed FROM recipe "
                            "ORDER BY no LIMIT "
        + std::to_string(kPageRows) + " OFFSET " + std::to_string(page * kPageRows);
    xDatabase::db_query(kDb, kQueryPage, sql.c_str(), true);
}

void onResult(xDatabase::DbQueryResult* r)
{
    if (r->errorType != 0) {
        std::printf("demo: recipe query failed: %s\n", r->errorText.c_str());
        return;
    }
    if (r->queryId == kQueryPage)
        showPage(r->rows);
}

void openDatabase()
{
    std::system("mkdir -p demo-project");
    std::remove("demo-project/recipes.db");
    std::list<xDatabase::DbConnInfo> infos(1);
    infos.front().dbNo = kDb;
    infos.front().driver = "QSQLITE";
    infos.front().dbName = "demo-project/recipes.db";
    xDatabase::db_init(infos, onResult);
    std::list<std::string> setup {
        "CREATE TABLE recipe (no INTEGER PRIMARY KEY, name TEXT, sugar REAL, water REAL, changed TEXT)",
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(kRecipes)
            + ") INSERT INTO recipe SELECT i, 'Syrup ' || char(65 + i % 26) || '-' || i, (i * 37 % 500) / 10.0,"
              " (i * 53 % 900) / 10.0, datetime('2026-11-01 06:00:00', '+' || (i * 7) || ' minutes') FROM n",
    };
    const xDatabase::DbQueryResult r = xDatabase::db_querySync(kDb, setup);
    if (r.errorType != 0)
        std::printf("demo: recipe table not made: %s\n", r.errorText.c_str());
}
} // namespace

void build(unsigned windowId)
{
    g_window = windowId;
    if (g_built) {
        View_SetWidgetParent(kTable, windowId);
        return;
    }
    g_built = true;
    openDatabase();
    View_listRecipe rec {};
    View_List& l = rec.list;
    l.rect = Rect { 24, 24, 976, 552 };
    l.id = kTable;
    l.columns = kColumns;
    l.columnCount = 5;
    l.flags = LIST_SELECT_ROW | LIST_SINGLE_LINE | LIST_SHOW_TOOLBAR;
    l.headerHeight = 44;
    l.rowHeight = 36;
    l.headerFont = &g_headerFont;
    l.contentFont = &g_cellFont;
    l.headerColor = 0xFF2B3A4Au;
    l.backColor = 0xFFFFFFFFu;
    l.altBackColor = 0xFFEEF2F7u;
    l.highlightColor = 0xFFFFE082u;
    l.gridPen = Pen { 0xFFC8CFD8u, 1, PEN_SOLID };
    View_CreateListRecipe(&rec, windowId);
    requestPage(0);
}

bool onEvent(unsigned id, int code, void* data)
{
    if (id != kTable)
        return false;
    switch (code) {
    case EVT_WIDGET_RELEASE:
        if (data) {
            // the logic layer owns the selection: the released row is highlighted
            const auto* cell = static_cast<const View_EvtCell*>(data);
            if (cell->row >= 0)
                View_ChangeListCtrlSel(kTable, cell->row, cell->column);
        }
        break;
    case EVT_LIST_PAGE_HOME:
        requestPage(0);
        break;
    case EVT_LIST_PAGE_UP:
        requestPage(g_page - 1);
        break;
    case EVT_LIST_PAGE_NEXT:
        requestPage(g_page + 1);
        break;
    case EVT_LIST_PAGE_END:
        requestPage(kPages - 1);
        break;
    case EVT_LIST_GOTO_PAGE:
        if (data)
            requestPage(*static_cast<const int*>(data) - 1); // the bar counts from 1
        break;
    default:
        break;
    }
    return true;
}

bool scriptStep(int n, void (*shot)(const char* name))
{
    switch (n) {
    case 0:
        return true; // the page arrives from the database
    case 1:
        shot("13-recipes");
        return true;
    case 2: {
        View_EvtCell cell { 4, 1 }; // the operator touches the fifth recipe
        onEvent(kTable, EVT_WIDGET_RELEASE, &cell);
        int page = 4; // and types page 4 in the paging bar: the highlight stays on its row
        onEvent(kTable, EVT_LIST_GOTO_PAGE, &page);
        return true;
    }
    case 3:
        shot("14-recipes-page4");
        return true;
    default:
        return false;
    }
}

} // namespace RecipeScreen
