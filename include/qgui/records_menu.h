/*
 * qgui public interface: records of the menu widgets (drop-down box or in-place
 * list / tree) and of the tree content.
 *
 * Every menu kind starts with a View_Menu (so with the common widget header
 * U32 header, Rect rect, U32 id, see records_display.h); all kinds are built by
 * one creator from that common part.
 */
#ifndef QGUI_RECORDS_MENU_H
#define QGUI_RECORDS_MENU_H

#include "types.h"

/** Bits of View_Menu::flags. */
enum MenuFlag : U32 {
    MENU_TREE = 0x1, /**< the content is a tree (View_ChangeMenuTreeContent) instead of a flat list */
    MENU_IN_PLACE
    = 0x2 /**< only the content view is built, in the window; without it a drop-down box with a pop-up */
};

/** Common part of every menu kind. */
struct View_Menu {
    U32 header; /**< opacity word */
    Rect rect; /**< drop-down: the box; in place: the content view */
    U32 id; /**< widget id */
    U32 flags; /**< MenuFlag bits */
    const Font* font; /**< font and colour of the box text and of the entries */
    const View_TextLayout* layout; /**< alignment of the box's display text */
    const char* bgImage; /**< background image path of the content view; null or "" for none */
    U32 boxColor; /**< drop-down: box background colour word */
    U32 backColor; /**< content view background colour word */
    U32 highlightColor; /**< colour word of the current entry */
    U32 frameColor; /**< colour word of the borders */
    int borderWidth; /**< border width, pixels */
    int popHeight; /**< drop-down: pop-up height, pixels; <= 0 fits the entries */
    int rowHeight; /**< entry height, pixels; <= 0 selects the font's line height */
    int indent; /**< tree: indentation per level, pixels */
};

/** Menu of alarm levels (View_CreateMenuAlarmLevel). */
struct View_MenuAlarmLevel {
    View_Menu menu; /**< the common part */
};

/** Menu of constants (View_CreateMenuConst). */
struct View_MenuConst {
    View_Menu menu; /**< the common part */
};

/** Menu of notes (View_CreateMenuNotes). */
struct View_MenuNotes {
    View_Menu menu; /**< the common part */
};

/** Menu of permissions (View_CreateMenuPermission). */
struct View_MenuPermission {
    View_Menu menu; /**< the common part */
};

/** Tree menu of alarm groups (View_CreateMenuTreeAlarmGrp); flags normally has MENU_TREE. */
struct View_MenuTreeAlarmGrp {
    View_Menu menu; /**< the common part */
};

/** Menu of users (View_CreateMenuUser). */
struct View_MenuUser {
    View_Menu menu; /**< the common part */
};

/** Menu of variable values (View_CreateMenuVar). */
struct View_MenuVar {
    View_Menu menu; /**< the common part */
};

/** One node of a tree menu's content (View_ChangeMenuTreeContent passes the root, whose text is not shown).
 */
struct View_TreeNode {
    const char* text; /**< entry text */
    const char* image; /**< icon path before the text; null or "" for none */
    int index; /**< number sent with EVT_WIDGET_PRESS / RELEASE for this entry and used by
                  View_ChangeMenuTreeSelect */
    U8 expanded; /**< non-zero: the children are shown initially */
    const View_TreeNode* children; /**< the child nodes, in order */
    U32 childCount; /**< number of child nodes */
};

#endif /* QGUI_RECORDS_MENU_H */
