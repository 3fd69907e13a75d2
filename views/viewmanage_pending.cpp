// Families whose widgets are not built yet. Every call is accepted and changes
// nothing: creators create nothing and return -1 (as for an unknown window),
// other calls return the result fixed for an unknown id. Each family moves to
// its own viewmanage_<family>.cpp when its widget is written.
#include "views/viewmanage.h"

// ---- graphic shapes

int ViewManage::View_ChangePen(unsigned int, const Pen*)
{
    return -1;
}

int ViewManage::View_CreateGraphArc(const View_GraphArc*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphBezierCurve(const View_GraphBezierCurve*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphEllipse(const View_GraphEllipse*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphGrid(const View_GraphGrid*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphPie(const View_GraphPie*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphPolygon(const View_GraphPolygon*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphPolyline(const View_GraphPolyline*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphRect(const View_GraphRect*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphScale(const View_GraphScale*, unsigned int)
{
    return -1;
}

int ViewManage::View_FillWidget(unsigned int, int, int, int, Brush)
{
    return -1;
}

int ViewManage::View_RotateWidget(unsigned int, int, int)
{
    return -1;
}

int ViewManage::View_ZoomWidget(unsigned int, int, int, int)
{
    return -1;
}

// ---- image

int ViewManage::View_CreateImage(const View_Image*, unsigned int)
{
    return -1;
}

// ---- bar

int ViewManage::View_BarUpdateOrigin(unsigned int, unsigned char)
{
    return -1;
}

int ViewManage::View_BarUpdateScaleLabels(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

int ViewManage::View_BarUpdateTarget(unsigned int, unsigned char, unsigned char)
{
    return -1;
}

int ViewManage::View_BarUpdateVar(unsigned int, unsigned char, const char*, const Brush&)
{
    return -1;
}

int ViewManage::View_CreateBar(const View_Bar*, unsigned int)
{
    return -1;
}

// ---- meter

int ViewManage::View_CreateGroupMeter()
{
    return -1;
}

int ViewManage::View_CreateMeter(const View_Meter*, unsigned int)
{
    return -1;
}

int ViewManage::View_MeterUpdateAlarmRange(unsigned int, int, int)
{
    return -1;
}

int ViewManage::View_MeterUpdateScaleLabels(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

int ViewManage::View_MeterUpdateVal(unsigned int, int)
{
    return -1;
}

// ---- slider

int ViewManage::View_ChangeSliderLabels(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

int ViewManage::View_ChangeSliderPos(unsigned int, double)
{
    return -1;
}

int ViewManage::View_CreateSlider(const View_Slider*, unsigned int)
{
    return -1;
}

// ---- pipeline

int ViewManage::View_CreatePipeline(const View_Pipeline*, unsigned int)
{
    return -1;
}

int ViewManage::View_PipelineUpdateDirect(unsigned int, bool)
{
    return -1;
}

int ViewManage::View_PipelineUpdateFlowShapeColor(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_PipelineUpdateFlowrate(unsigned int, unsigned int)
{
    return -1;
}

// ---- pie chart and groups

int ViewManage::View_CreateGroup(const View_Group*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGroupBar()
{
    return -1;
}

int ViewManage::View_CreateGroupIOList(const View_GroupIOList*, unsigned int)
{
    return -1;
}

// ---- text and numeric input

int ViewManage::View_ChangeInputParam(unsigned int, const View_Input*)
{
    return -1;
}

int ViewManage::View_CreateInputText(const View_Input*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateNumInputText(const View_Input*, unsigned int)
{
    return -1;
}

int ViewManage::View_SetTextCursorFocus(unsigned int)
{
    return -1;
}

int ViewManage::View_SetTextCursorPosition(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_SetTextSelectCursor(unsigned int, unsigned int, unsigned int)
{
    return -1;
}

// ---- virtual keyboard and Pinyin candidate bar

int ViewManage::View_ChangeKBText(unsigned int, const char*, const Font*)
{
    return 0;
}

int ViewManage::View_CloseVirtualKeyboard()
{
    return 0;
}

int ViewManage::View_HideKeyBoardWidget()
{
    return 0;
}

int ViewManage::View_PopupVirtualKeyboard(unsigned int, int, const char*)
{
    return 0;
}

int ViewManage::View_SetKBoardTextCursorFocus()
{
    return 0;
}

int ViewManage::View_SetKBoardTextCursorPosition(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_SetKBoardTextSelectCursor(unsigned int, unsigned int, unsigned int)
{
    return 0;
}

int ViewManage::View_ShowKeyBoardWidget(View_keyBoardData*)
{
    return 0;
}

// ---- list controls

int ViewManage::View_AddListCtrlContent(unsigned int, const std::vector<std::string>&, int)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlBrowseBoxParams(unsigned int, unsigned int*)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlContent(unsigned int, const std::vector<std::vector<View_ListColData>>&)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlEditMode(unsigned int, int)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlEnableEditCol(unsigned int, int, bool)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlEnableFilter(unsigned int, bool)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlFont(unsigned int, const std::vector<Font*>&)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlFontColor(unsigned int, int, const Brush&)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlHideCol(unsigned int, const std::list<std::pair<int, bool>>&)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlRowTextVisible(unsigned int, const std::list<int>&, bool)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlSel(unsigned int, int, int)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlTitle(unsigned int, const std::vector<View_Text>&)
{
    return -1;
}

int ViewManage::View_CreateListAlarm(const View_listAlarm*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListAlarmStat(const View_listAlarmStat*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListComErr(const View_listComErr*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListCtrl(const View_List*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListDbView(const View_listDbView*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListEvent(const View_listEvent*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListPermission(const View_listPermission*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListRecipe(const View_listRecipe*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListSample(const View_listSample*, unsigned int)
{
    return -1;
}

int ViewManage::View_GetListCtrlContent(unsigned int, int, int, std::vector<std::string>&)
{
    return -1;
}

// ---- alarm bar

int ViewManage::View_CreateListAlarmBar(const View_listAlarmBar*, unsigned int)
{
    return -1;
}

// ---- menus

int ViewManage::View_ChangeMenuContent(unsigned int, const std::list<View_Text>&)
{
    return -1;
}

int ViewManage::View_ChangeMenuSelect(unsigned int, int, const View_Image*, const View_Text*)
{
    return -1;
}

int ViewManage::View_ChangeMenuTreeContent(unsigned int, const View_TreeNode*)
{
    return -1;
}

int ViewManage::View_ChangeMenuTreeSelect(unsigned int, int, const View_Text*)
{
    return -1;
}

int ViewManage::View_CreateMenuAlarmLevel(const View_MenuAlarmLevel*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuConst(const View_MenuConst*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuNotes(const View_MenuNotes*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuPermission(const View_MenuPermission*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuTreeAlarmGrp(const View_MenuTreeAlarmGrp*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuUser(const View_MenuUser*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuVar(const View_MenuVar*, unsigned int)
{
    return -1;
}

int ViewManage::View_MenuPopupDropdownBox(unsigned int)
{
    return -1;
}

// ---- date and time

int ViewManage::View_CreateInputClock(const View_InputClock*, unsigned int)
{
    return -1;
}

int ViewManage::View_PopupDateTimeDialog(unsigned int, const char*)
{
    return -1;
}

// ---- sample curve chart

int ViewManage::View_CreateCurveSample(const View_CurveSample*, unsigned int)
{
    return -1;
}

int ViewManage::View_CurveHideChannel(unsigned int, unsigned int, bool)
{
    return -1;
}

int ViewManage::View_CurveSampleChangeDispNum(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_CurveSampleClearData(unsigned int, const std::vector<unsigned int>&)
{
    return -1;
}

int ViewManage::View_CurveSampleInit(unsigned int, const std::string&)
{
    return -1;
}

int ViewManage::View_CurveSamplePopData(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_CurveSamplePushData(unsigned int, const std::vector<std::string>&, const std::vector<std::vector<double>>&)
{
    return -1;
}

int ViewManage::View_CurveSampleScale(unsigned int, unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_CurveSampleUpdateData(unsigned int, const std::vector<unsigned int>&, const std::vector<std::string>&, const std::vector<std::vector<double>>&, unsigned int, bool)
{
    return -1;
}

int ViewManage::View_CurveSampleUpdateDataLabel(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

int ViewManage::View_CurveSampleUpdateDataLimit(unsigned int, int, unsigned char, double*)
{
    return -1;
}

// ---- curve history search

int ViewManage::View_CurveSampleResumeRealMode(unsigned int)
{
    return -1;
}

int ViewManage::View_CurveSampleSetSearchMode(unsigned int, bool)
{
    return -1;
}

int ViewManage::View_RestoreCurveSampleSearchState(unsigned int)
{
    return -1;
}

// ---- XY curve

int ViewManage::View_CreateCurveXy(const View_CurveXy*, unsigned int)
{
    return -1;
}

int ViewManage::View_CurveXyClearData(unsigned int, const std::vector<unsigned int>&)
{
    return -1;
}

int ViewManage::View_CurveXyShowCursor()
{
    return -1;
}

int ViewManage::View_CurveXyUpdateData(unsigned int, const std::vector<unsigned int>&, const std::vector<std::list<FPoint>>&)
{
    return -1;
}

int ViewManage::View_CurveXyUpdateXLabel(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

int ViewManage::View_CurveXyUpdateYLabel(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

// ---- curve cursor

int ViewManage::View_CurveEnableCursor(unsigned int, bool)
{
    return -1;
}

int ViewManage::View_CurveSampleShowCursor(unsigned int, const std::string&, const std::vector<std::pair<unsigned short, std::string> >&)
{
    return -1;
}

int ViewManage::View_CurveUpdateCursorContent(unsigned int, const char*, const std::vector<std::vector<View_ListColData>>&)
{
    return -1;
}

int ViewManage::View_CurveUpdateCursorParams(unsigned int, const std::vector<View_Text>&, const std::vector<Font*>&)
{
    return -1;
}

int ViewManage::View_CurveUpdateCursorTitle(unsigned int, const View_Text&)
{
    return -1;
}

// ---- packages, external devices, file dialog

int ViewManage::View_ExtDevEject(int)
{
    return -1;
}

int ViewManage::View_PopupExtDevPlugin(unsigned int, int)
{
    return -1;
}

int ViewManage::View_PopupFileDialog(unsigned int, const char*)
{
    return -1;
}

int ViewManage::View_PopupPKGDownloadCfm(unsigned int, int, const char*)
{
    return -1;
}

int ViewManage::View_PopupPKGFileExplorer(unsigned int, int)
{
    return -1;
}

// ---- PDF viewer and writer, export

int ViewManage::View_ClosePdfWriter(unsigned int)
{
    return -1;
}

int ViewManage::View_CreatePdf(const View_Pdf*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreatePdfWriter(unsigned int, const char*)
{
    return -1;
}

int ViewManage::View_Export2File(void*, std::function<void(void*)>)
{
    return -1;
}

int ViewManage::View_PdfSetDisplayMode(unsigned int, int)
{
    return -1;
}

int ViewManage::View_PdfSwitchPage(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_PdfUpdateFile(unsigned int, const char*)
{
    return -1;
}

int ViewManage::View_PdfZoom(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_Write2Pdf(unsigned int, const std::vector<std::string>&, const std::vector<std::vector<std::string>>&, bool)
{
    return -1;
}
