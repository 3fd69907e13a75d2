// The menu screen: how a logic layer drives a drop-down menu and a tree menu.
// Runs on the GUI thread, inside the library's call-backs.
#include "menuscreen.h"

#include <cstdio>
#include <list>
#include <string>

namespace MenuScreen {

namespace {

const unsigned kSpeed = 400, kGroups = 401, kStatus = 402;
const char* const kSpeeds[] = { "Slow (20/min)", "Normal (40/min)", "Fast (60/min)" };
bool g_built = false;
unsigned g_window = 0;

// alarm groups: index = the number each entry reports
View_TreeNode g_lineA[] = { { "Filler", nullptr, 111, 0, nullptr, 0 }, { "Capper", nullptr, 112, 0, nullptr, 0 } };
View_TreeNode g_lineB[] = { { "Labeller", nullptr, 121, 0, nullptr, 0 } };
View_TreeNode g_plant[] = { { "Line A", nullptr, 110, 1, g_lineA, 2 }, { "Line B", nullptr, 120, 0, g_lineB, 1 } };
View_TreeNode g_top[] = { { "Plant 1", nullptr, 100, 1, g_plant, 2 }, { "Utilities", nullptr, 200, 0, nullptr, 0 } };
View_TreeNode g_root = { "", nullptr, -1, 1, g_top, 2 };

const char* groupName(int index)
{
    for (const View_TreeNode& n : g_top) {
        if (n.index == index)
            return n.text;
        for (U32 i = 0; i < n.childCount; ++i) {
            const View_TreeNode& l = n.children[i];
            if (l.index == index)
                return l.text;
            for (U32 j = 0; j < l.childCount; ++j) {
                if (l.children[j].index == index)
                    return l.children[j].text;
            }
        }
    }
    return nullptr;
}

void status(const std::string& s)
{
    View_ChangeTextContent(kStatus, s.c_str(), nullptr);
}

View_Menu menu(unsigned id, Rect r, unsigned flags, const Font* f)
{
    View_Menu m {};
    m.rect = r;
    m.id = id;
    m.flags = flags;
    m.font = f;
    m.boxColor = 0xFFFFFFFFu;
    m.backColor = 0xFFFFFFFFu;
    m.highlightColor = 0xFF90CAF9u;
    m.frameColor = 0xFF607080u;
    m.borderWidth = 1;
    m.popHeight = flags & MENU_TREE ? 220 : 0; // the list fits its entries
    m.rowHeight = 36;
    m.indent = 24;
    return m;
}

} // namespace

void build(unsigned windowId)
{
    if (g_built)
        return;
    g_built = true;
    g_window = windowId;
    static Font f {};
    f.pixelSize = 22;
    f.color = 0xFF102030u;
    f.align = QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER;
    View_MenuConst speed { menu(kSpeed, Rect { 40, 120, 300, 44 }, 0, &f) };
    View_CreateMenuConst(&speed, windowId);
    std::list<View_Text> entries;
    for (const char* s : kSpeeds)
        entries.push_back(View_Text { 0, Rect {}, 0, s, nullptr, nullptr });
    View_ChangeMenuContent(kSpeed, entries);
    View_Text shown { 0, Rect {}, 0, kSpeeds[1], nullptr, nullptr };
    View_ChangeMenuSelect(kSpeed, 1, nullptr, &shown);

    View_MenuTreeAlarmGrp groups { menu(kGroups, Rect { 40, 200, 320, 44 }, MENU_TREE, &f) };
    View_CreateMenuTreeAlarmGrp(&groups, windowId);
    View_ChangeMenuTreeContent(kGroups, &g_root);
    View_Text all { 0, Rect {}, 0, "All alarm groups", nullptr, nullptr };
    View_ChangeMenuTreeSelect(kGroups, -1, &all);

    static const View_TextLayout layout { QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, 0, 0 };
    View_Text st { 0, Rect { 40, 420, 700, 40 }, kStatus, "Pick a speed or an alarm group", &f, &layout };
    View_CreateText(&st, windowId);
}

bool onEvent(unsigned id, int code, void* data)
{
    if (id != kSpeed && id != kGroups)
        return false;
    if (code != EVT_WIDGET_RELEASE)
        return true;
    if (!data) { // the closed box was released: the logic decides to open it
        View_MenuPopupDropdownBox(id);
        return true;
    }
    const int index = *static_cast<const int*>(data);
    if (id == kSpeed && index >= 0 && index < 3) {
        View_Text shown { 0, Rect {}, 0, kSpeeds[index], nullptr, nullptr };
        View_ChangeMenuSelect(kSpeed, index, nullptr, &shown);
        status(std::string("Line speed set to ") + kSpeeds[index]);
    } else if (id == kGroups) {
        if (const char* name = groupName(index)) {
            View_Text shown { 0, Rect {}, 0, name, nullptr, nullptr };
            View_ChangeMenuTreeSelect(kGroups, index, &shown);
            status(std::string("Alarm list filtered to ") + name);
        }
    }
    return true;
}

bool scriptStep(int n, void (*shot)(const char* name))
{
    switch (n) {
    case 0: // the operator releases the alarm-group box: the logic opens it
        onEvent(kGroups, EVT_WIDGET_RELEASE, nullptr);
        return true;
    case 1:
        shot("2b-alarm-group-tree");
        return true;
    case 2: { // and picks "Filler" under Plant 1 / Line A; the box closes with the choice
        int filler = 111;
        onEvent(kGroups, EVT_WIDGET_RELEASE, &filler);
        View_HideWidget(kGroups, ITEM_SLASH_WHOLE); // (a real release on the entry closes it itself)
        View_ShowWidget(kGroups, 1, ITEM_SLASH_WHOLE);
        return true;
    }
    case 3:
        shot("2c-alarm-group-chosen");
        return true;
    default:
        return false;
    }
}

} // namespace MenuScreen
