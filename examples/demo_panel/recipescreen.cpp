// The recipe screen: a page of a real SQLite table shown in the panel's table
// control, sorted and filtered by the operator's header menus and edited in
// place. Everything here runs on the GUI thread, inside the library's
// call-backs (database results included: the service answers on the thread
// that registered the database).
#include "recipescreen.h"

#include "operatortouch.h"

#include <qgui/xdatabase.h>

#include <cstdio>
#include <cstdlib>
#include <list>
#include <map>
#include <string>
#include <vector>

namespace RecipeScreen {

namespace {
const unsigned kTable = 500;
const unsigned kSave = 501;
const unsigned kDb = 1;
const unsigned kQueryPage = 1;
const unsigned kQueryCount = 2;
const unsigned kQueryUpdate = 3;
const int kPageRows = 12;
const int kRecipes = 2000;
unsigned g_window = 0;
bool g_built = false;
int g_page = 0;
int g_total = kRecipes; // records passing the filters
std::vector<std::string> g_pageNos; // recipe numbers of the rows shown

// the operator's choices from the header menus
const char* const kFields[5] = { "no", "name", "sugar", "water", "changed" };
std::string g_orderBy = "no";
std::map<int, std::string> g_filters; // column -> SQL condition

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

int pages()
{
    return g_total <= 0 ? 1 : (g_total + kPageRows - 1) / kPageRows;
}

std::string whereClause()
{
    std::string where;
    for (const auto& f : g_filters)
        where += (where.empty() ? " WHERE " : " AND ") + f.second;
    return where;
}

void requestPage(int page)
{
    page = page < 0 ? 0 : page >= pages() ? pages() - 1 : page;
    g_page = page;
    unsigned numbers[3] = { unsigned(g_total), unsigned(page + 1), unsigned(pages()) };
    View_ChangeListCtrlBrowseBoxParams(kTable, numbers); // the bar shows what the logic layer says
    const std::string sql = "SELECT no, name, printf('%.2f', sugar), printf('%.1f', water), changed FROM recipe"
        + whereClause() + " ORDER BY " + g_orderBy + " LIMIT " + std::to_string(kPageRows) + " OFFSET "
        + std::to_string(page * kPageRows);
    xDatabase::db_query(kDb, kQueryPage, sql.c_str(), true);
}

/** A new sort or filter: the count first, then the first page. */
void requery()
{
    const std::string sql = "SELECT COUNT(*) FROM recipe" + whereClause();
    xDatabase::db_query(kDb, kQueryCount, sql.c_str(), true);
}

std::string quoted(const std::string& text)
{
    std::string out = "'";
    for (char c : text)
        out += c == '\'' ? std::string("''") : std::string(1, c);
    return out + "'";
}

bool isNumber(const std::string& text)
{
    char* end = nullptr;
    std::strtod(text.c_str(), &end);
    return !text.empty() && end && *end == '\0';
}

/** One condition of the filter dialog as SQL; "" when its value does not suit the column. */
std::string condition(int column, const char* value, int op)
{
    const std::string v = value ? value : "";
    const bool numeric = column == 0 || column == 2 || column == 3;
    if (v.empty() || (numeric && !isNumber(v)))
        return std::string();
    const std::string field = kFields[column];
    const std::string literal = numeric ? v : quoted(v);
    switch (op) {
    case OPERATOR_EQUAL: return field + " = " + literal;
    case OPERATOR_NOT_EQUAL: return field + " <> " + literal;
    case OPERATOR_LESS: return field + " < " + literal;
    case OPERATOR_LESS_EQUAL: return field + " <= " + literal;
    case OPERATOR_MORE: return field + " > " + literal;
    case OPERATOR_MORE_EQUAL: return field + " >= " + literal;
    case OPERATOR_LIKE: return field + " LIKE " + quoted("%" + v + "%");
    default: return std::string();
    }
}

void applyFilter(const View_EvtListFilter& f)
{
    if (f.column < 0 || f.column >= 5)
        return;
    const std::string first = condition(f.column, f.value1, f.operator1);
    const std::string second = condition(f.column, f.value2, f.operator2);
    if (first.empty()) {
        g_filters.erase(f.column); // "Clear", or a value that does not suit the column
    } else if (second.empty()) {
        g_filters[f.column] = first;
    } else {
        g_filters[f.column]
            = "(" + first + (f.join == OPERATOR_LOGICAL_OR ? " OR " : " AND ") + second + ")";
    }
    requery();
}

void applySort(const View_EvtListSort& s)
{
    if (s.column >= 5)
        return;
    const std::string field = kFields[s.column];
    g_orderBy = s.order == ORDER_ASCEND ? field + " ASC, no"
        : s.order == ORDER_DESCEND      ? field + " DESC, no"
                                        : std::string("no");
    requestPage(0);
}

/** The operator's edits, written to the database; the page is read again afterwards. */
void saveEdits(const View_EvtListEdits& edits)
{
    std::list<std::string> sqls;
    for (const View_ListEditItem& e : edits) {
        if (e.row < 0 || size_t(e.row) >= g_pageNos.size() || e.column < 1 || e.column > 3 || !e.text)
            continue;
        const bool numeric = e.column != 1;
        if (numeric && !isNumber(e.text))
            continue;
        sqls.push_back(std::string("UPDATE recipe SET ") + kFields[e.column] + " = "
            + (numeric ? std::string(e.text) : quoted(e.text)) + ", changed = datetime('now', 'localtime') WHERE no = "
            + g_pageNos[size_t(e.row)]);
    }
    std::printf("demo: saving %zu recipe edits\n", sqls.size());
    if (!sqls.empty())
        xDatabase::db_query(kDb, kQueryUpdate, sqls);
}

void onResult(xDatabase::DbQueryResult* r)
{
    if (r->errorType != 0) {
        std::printf("demo: recipe query failed: %s\n", r->errorText.c_str());
        return;
    }
    if (r->queryId == kQueryPage) {
        g_pageNos.clear();
        for (const auto& row : r->rows)
            g_pageNos.push_back(row.empty() ? std::string("0") : row.front());
        showPage(r->rows);
    } else if (r->queryId == kQueryCount) {
        g_total = r->rows.empty() || r->rows.front().empty() ? 0 : std::atoi(r->rows.front().front().c_str());
        requestPage(0);
    } else if (r->queryId == kQueryUpdate) {
        requestPage(g_page);
    }
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
    l.rect = Rect { 24, 16, 976, 524 }; // header, twelve rows and the paging bar
    l.id = kTable;
    l.columns = kColumns;
    l.columnCount = 5;
    l.flags = LIST_SELECT_ROW | LIST_SINGLE_LINE | LIST_SHOW_TOOLBAR | LIST_ENABLE_FILTER;
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
    View_ChangeListCtrlEditMode(kTable, 1); // recipes are edited in place (the call answers -1 by design)
    requestPage(0);

    // "Save": the edits made since the last save are sent by switching edit mode on again
    Font f { nullptr, 20, 600, 0, 0, 0, 0, 0xFFFFFFFFu, 0 };
    View_TextLayout layout { QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, 0, 0 };
    View_ImageText save { 0, Rect { 820, 548, 180, 46 }, kSave, "button.svg", "Save", &f, &layout };
    View_CreateButton(&save, windowId);
    Font hintFont { nullptr, 17, 400, 0, 0, 0, 0, 0xFF3B4A5Au, 0 };
    View_TextLayout hintLayout { QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, 0, 0 };
    View_Text hint { 0, Rect { 24, 548, 780, 46 }, 502,
        "Touch a title to sort or filter; touch a name, sugar or water to change it, then Save.", &hintFont,
        &hintLayout };
    View_CreateText(&hint, windowId);
}

bool onEvent(unsigned id, int code, void* data)
{
    if (id == kSave) {
        if (code == EVT_WIDGET_RELEASE)
            View_ChangeListCtrlEditMode(kTable, 1); // sends the pending edits, if any
        return true;
    }
    if (id != kTable)
        return false;
    switch (code) {
    case EVT_LIST_SORT:
        if (data)
            applySort(*static_cast<const View_EvtListSort*>(data));
        break;
    case EVT_LIST_FILTER:
        if (data)
            applyFilter(*static_cast<const View_EvtListFilter*>(data));
        break;
    case EVT_LIST_EDIT_COMMIT:
        if (data)
            saveEdits(*static_cast<const View_EvtListEdits*>(data));
        break;
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
        requestPage(pages() - 1);
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
    auto touchItem = [](const char* name) {
        if (!OperatorTouch::touchItem(name))
            std::printf("demo: the script found no \"%s\" to touch\n", name);
    };
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
    case 4: // from here on the script touches the panel as the operator would
        touchItem("headerTitle2"); // "Sugar (kg)": its sort and filter menu
        return true;
    case 5:
        shot("15-recipes-sort-menu");
        return true;
    case 6:
        touchItem("descendAction"); // the most sugar first
        return true;
    case 7:
        shot("16-recipes-sorted");
        return true;
    case 8:
        touchItem("headerTitle1"); // "Recipe": a text filter
        touchItem("filterMenu");
        return true;
    case 9:
        touchItem("operator20"); // "Like..."
        return true;
    case 10:
        touchItem("value1");
        return true;
    case 11:
        touchItem("key_q");
        touchItem("key_enter");
        return true;
    case 12:
        shot("17-recipes-filter-dialog");
        return true;
    case 13:
        touchItem("commitButton"); // only the recipes of line Q
        return true;
    case 14:
        shot("18-recipes-filtered");
        return true;
    case 15: // the first recipe's sugar changed in place, then saved
        OperatorTouch::touchWidget(kTable, 80 + 366 + 75, 44 + 18);
        return true;
    case 16:
        touchItem("key_clear");
        touchItem("key_4");
        touchItem("key_2");
        touchItem("key_enter");
        return true;
    case 17:
        OperatorTouch::touchWidget(kSave, 90, 23);
        return true;
    case 18:
        shot("19-recipes-saved");
        return true;
    default:
        return false;
    }
}

} // namespace RecipeScreen
