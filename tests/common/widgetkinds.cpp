#include "widgetkinds.h"

#include <cstring>

namespace {

/* The common header every widget record starts with. */
struct Header {
    U32 header;
    Rect rect;
    U32 id;
};

template <typename Record, int (*Create)(const Record*, unsigned)>
int createLeast(unsigned id, unsigned windowId, const Rect& box)
{
    static_assert(sizeof(Record) >= sizeof(Header), "a widget record starts with the common header");
    Record rec;
    std::memset(static_cast<void*>(&rec), 0, sizeof rec);
    Header h { 0, box, id };
    std::memcpy(static_cast<void*>(&rec), &h, sizeof h);
    return Create(&rec, windowId);
}

/* The menus also come as content views placed in the window, without their drop-down box. */
template <typename Record, int (*Create)(const Record*, unsigned)>
int createInPlace(unsigned id, unsigned windowId, const Rect& box)
{
    Record rec;
    std::memset(static_cast<void*>(&rec), 0, sizeof rec);
    rec.menu.rect = box;
    rec.menu.id = id;
    rec.menu.flags = MENU_IN_PLACE;
    return Create(&rec, windowId);
}

} // namespace

const QList<WidgetKind>& widgetKinds()
{
    static const QList<WidgetKind> kinds {
        { "View_CreateButton", &createLeast<View_ImageText, &View_CreateButton> },
        { "View_CreateText", &createLeast<View_Text, &View_CreateText> },
        { "View_CreateGraphArc", &createLeast<View_GraphArc, &View_CreateGraphArc> },
        { "View_CreateGraphBezierCurve", &createLeast<View_GraphBezierCurve, &View_CreateGraphBezierCurve> },
        { "View_CreateGraphEllipse", &createLeast<View_GraphEllipse, &View_CreateGraphEllipse> },
        { "View_CreateGraphGrid", &createLeast<View_GraphGrid, &View_CreateGraphGrid> },
        { "View_CreateGraphPie", &createLeast<View_GraphPie, &View_CreateGraphPie> },
        { "View_CreateGraphPolygon", &createLeast<View_GraphPolygon, &View_CreateGraphPolygon> },
        { "View_CreateGraphPolyline", &createLeast<View_GraphPolyline, &View_CreateGraphPolyline> },
        { "View_CreateGraphRect", &createLeast<View_GraphRect, &View_CreateGraphRect> },
        { "View_CreateGraphScale", &createLeast<View_GraphScale, &View_CreateGraphScale> },
        { "View_CreateImage", &createLeast<View_Image, &View_CreateImage> },
        { "View_CreateBar", &createLeast<View_Bar, &View_CreateBar> },
        { "View_CreateMeter", &createLeast<View_Meter, &View_CreateMeter> },
        { "View_CreateSlider", &createLeast<View_Slider, &View_CreateSlider> },
        { "View_CreatePipeline", &createLeast<View_Pipeline, &View_CreatePipeline> },
        { "View_CreateQRCode", &createLeast<View_QRCode, &View_CreateQRCode> },
        { "View_CreateGroup", &createLeast<View_Group, &View_CreateGroup> },
        { "View_CreateGroupIOList", &createLeast<View_GroupIOList, &View_CreateGroupIOList> },
        { "View_CreatePieChart", &createLeast<View_PieChart, &View_CreatePieChart> },
        { "View_CreateInputText", &createLeast<View_Input, &View_CreateInputText> },
        { "View_CreateNumInputText", &createLeast<View_Input, &View_CreateNumInputText> },
        { "View_CreateListAlarm", &createLeast<View_listAlarm, &View_CreateListAlarm> },
        { "View_CreateListAlarmStat", &createLeast<View_listAlarmStat, &View_CreateListAlarmStat> },
        { "View_CreateListComErr", &createLeast<View_listComErr, &View_CreateListComErr> },
        { "View_CreateListCtrl", &createLeast<View_List, &View_CreateListCtrl> },
        { "View_CreateListDbView", &createLeast<View_listDbView, &View_CreateListDbView> },
        { "View_CreateListEvent", &createLeast<View_listEvent, &View_CreateListEvent> },
        { "View_CreateListPermission", &createLeast<View_listPermission, &View_CreateListPermission> },
        { "View_CreateListRecipe", &createLeast<View_listRecipe, &View_CreateListRecipe> },
        { "View_CreateListSample", &createLeast<View_listSample, &View_CreateListSample> },
        { "View_CreateListAlarmBar", &createLeast<View_listAlarmBar, &View_CreateListAlarmBar> },
        { "View_CreateMenuAlarmLevel", &createLeast<View_MenuAlarmLevel, &View_CreateMenuAlarmLevel> },
        { "View_CreateMenuConst", &createLeast<View_MenuConst, &View_CreateMenuConst> },
        { "View_CreateMenuNotes", &createLeast<View_MenuNotes, &View_CreateMenuNotes> },
        { "View_CreateMenuPermission", &createLeast<View_MenuPermission, &View_CreateMenuPermission> },
        { "View_CreateMenuTreeAlarmGrp", &createLeast<View_MenuTreeAlarmGrp, &View_CreateMenuTreeAlarmGrp> },
        { "View_CreateMenuUser", &createLeast<View_MenuUser, &View_CreateMenuUser> },
        { "View_CreateMenuVar", &createLeast<View_MenuVar, &View_CreateMenuVar> },
        { "View_CreateMenuConst in place", &createInPlace<View_MenuConst, &View_CreateMenuConst> },
        { "View_CreateMenuTreeAlarmGrp in place", &createInPlace<View_MenuTreeAlarmGrp, &View_CreateMenuTreeAlarmGrp> },
        { "View_CreateInputClock", &createLeast<View_InputClock, &View_CreateInputClock> },
        { "View_CreateCurveSample", &createLeast<View_CurveSample, &View_CreateCurveSample> },
        { "View_CreateCurveXy", &createLeast<View_CurveXy, &View_CreateCurveXy> },
        { "View_CreatePdf", &createLeast<View_Pdf, &View_CreatePdf> },
        { "View_CreateCameraIP", &createLeast<View_CameraIP, &View_CreateCameraIP> },
        { "View_CreateCameraUSB", &createLeast<View_CameraUSB, &View_CreateCameraUSB> },
        { "View_CreateMediaPlayer", &createLeast<View_MediaPlayer, &View_CreateMediaPlayer> },
        { "View_CreateVncClient", &createLeast<View_VncClient, &View_CreateVncClient> },
        { "View_CreateWebBrowser", &createLeast<View_WebBrowser, &View_CreateWebBrowser> },
    };
    return kinds;
}
