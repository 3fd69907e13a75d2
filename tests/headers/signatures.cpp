// The exported functions keep the exact argument and result types that the logic
// layer links against: a changed parameter type of a C++-linkage function changes
// its symbol, and one of a C-linkage function silently breaks callers built
// against the old header. Any mismatch fails to compile.
#include <qgui/ftp.h>
#include <qgui/ids.h>
#include <qgui/scale.h>
#include <qgui/view.h>

#include <type_traits>

#define QGUI_CHECK_SIGNATURE(name, type)                                                                     \
    static_assert(std::is_same<decltype(&name), type>::value, #name " changed its signature")

// View_* functions, in the order of the catalogue
QGUI_CHECK_SIGNATURE(View_CreateProPkg, int (*)());
QGUI_CHECK_SIGNATURE(View_MainThreadLoop, int (*)(int, char**, _Main_CallBacks const*));
QGUI_CHECK_SIGNATURE(View_ChangeOpacity, int (*)(unsigned int, unsigned char));
QGUI_CHECK_SIGNATURE(View_ClrBusy, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_ClrDisableFlag, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_ClrInputFlag, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_ClrInputMode, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_DeleteWidgets, int (*)(std::list<unsigned int> const&));
QGUI_CHECK_SIGNATURE(View_GetWgtRect, int (*)(unsigned int, Rect&));
QGUI_CHECK_SIGNATURE(View_HideWidget, int (*)(unsigned int, ItemSlashType));
QGUI_CHECK_SIGNATURE(View_MoveWidget, int (*)(unsigned int, int, int));
QGUI_CHECK_SIGNATURE(View_SetBusy, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_SetDisableFlag, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_SetInputFlag, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_SetInputMode, int (*)(unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_SetWidgetParent, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_ShowWidget, int (*)(unsigned int, unsigned int, ItemSlashType));
QGUI_CHECK_SIGNATURE(View_ChangeWindowTitle, int (*)(unsigned int, char const*));
QGUI_CHECK_SIGNATURE(View_CloseDesktop, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_CloseWindow, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateDesktop, int (*)(Size const&, unsigned int));
QGUI_CHECK_SIGNATURE(View_GetTitleBarHeight, int (*)(unsigned int, int&));
QGUI_CHECK_SIGNATURE(View_GetWindowRect, int (*)(unsigned int, Rect&));
QGUI_CHECK_SIGNATURE(View_HideDesktop, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_HideProcess, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_HideWindow, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_PopupMsg, int (*)(char const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_PopupWindow, int (*)(View_Window*, unsigned int, View_Popup*, int));
QGUI_CHECK_SIGNATURE(View_SetDialogMoveControl, int (*)(unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_SetLight, int (*)(int));
QGUI_CHECK_SIGNATURE(View_SetWindowParent, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_ShowDesktop, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_ShowProcess, int (*)(unsigned int, unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_ShowWindow, int (*)(unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_SwitchWindow, int (*)(View_Window*));
QGUI_CHECK_SIGNATURE(View_WindowShowAndMove, int (*)(unsigned int, int, int));
QGUI_CHECK_SIGNATURE(View_HmiConnectResponse, int (*)());
QGUI_CHECK_SIGNATURE(View_HmiDisConnect, int (*)());
QGUI_CHECK_SIGNATURE(View_PopupSystemSet, int (*)());
QGUI_CHECK_SIGNATURE(View_SetGlobalConfigue, int (*)(View_GlobalConfig*));
QGUI_CHECK_SIGNATURE(View_SetInterfaceConfigue, int (*)(View_InterfaceConfigue*));
QGUI_CHECK_SIGNATURE(View_SetSysWndLang, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_CvtEncode, int (*)(int, int, void const*, unsigned int, char*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CvtEncode2, std::string (*)(int, int, std::string const&));
QGUI_CHECK_SIGNATURE(View_CvtLocal2Utf8, int (*)(char const*, char*));
QGUI_CHECK_SIGNATURE(View_CvtUtf82Local, int (*)(char const*, char*));
QGUI_CHECK_SIGNATURE(View_FileReadBytes, std::string (*)(char const*));
QGUI_CHECK_SIGNATURE(View_GetLocalDevName, std::string (*)());
QGUI_CHECK_SIGNATURE(View_MakeUUID, unsigned int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_ScreenShot, int (*)(unsigned int, View_ScreenShotData*));
QGUI_CHECK_SIGNATURE(View_ChangeButtonParam, int (*)(unsigned int, View_ImageText const*));
QGUI_CHECK_SIGNATURE(View_CreateButton, int (*)(View_ImageText const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CarouselText, int (*)(unsigned int, int, int));
QGUI_CHECK_SIGNATURE(View_ChangeFontColor, int (*)(unsigned int, Brush const*));
QGUI_CHECK_SIGNATURE(View_ChangeTextContent, int (*)(unsigned int, char const*, Font const*));
QGUI_CHECK_SIGNATURE(View_ChangeTextParam, int (*)(unsigned int, View_Text const*));
QGUI_CHECK_SIGNATURE(View_ChangeTitle, int (*)(unsigned int, View_Text const*));
QGUI_CHECK_SIGNATURE(View_CreateText, int (*)(View_Text const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_IsTextOutOfRange, int (*)(unsigned int, int));
QGUI_CHECK_SIGNATURE(View_ChangePen, int (*)(unsigned int, Pen const*));
QGUI_CHECK_SIGNATURE(View_CreateGraphArc, int (*)(View_GraphArc const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGraphBezierCurve, int (*)(View_GraphBezierCurve const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGraphEllipse, int (*)(View_GraphEllipse const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGraphGrid, int (*)(View_GraphGrid const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGraphPie, int (*)(View_GraphPie const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGraphPolygon, int (*)(View_GraphPolygon const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGraphPolyline, int (*)(View_GraphPolyline const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGraphRect, int (*)(View_GraphRect const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGraphScale, int (*)(View_GraphScale const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_FillWidget, int (*)(unsigned int, int, int, int, Brush));
QGUI_CHECK_SIGNATURE(View_RotateWidget, int (*)(unsigned int, int, int));
QGUI_CHECK_SIGNATURE(View_ZoomWidget, int (*)(unsigned int, int, int, int));
QGUI_CHECK_SIGNATURE(View_CreateImage, int (*)(View_Image const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_BarUpdateOrigin, int (*)(unsigned int, unsigned char));
QGUI_CHECK_SIGNATURE(View_BarUpdateScaleLabels, int (*)(unsigned int, std::vector<std::string> const&));
QGUI_CHECK_SIGNATURE(View_BarUpdateTarget, int (*)(unsigned int, unsigned char, unsigned char));
QGUI_CHECK_SIGNATURE(View_BarUpdateVar, int (*)(unsigned int, unsigned char, char const*, Brush const&));
QGUI_CHECK_SIGNATURE(View_CreateBar, int (*)(View_Bar const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGroupMeter, int (*)());
QGUI_CHECK_SIGNATURE(View_CreateMeter, int (*)(View_Meter const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_MeterUpdateAlarmRange, int (*)(unsigned int, int, int));
QGUI_CHECK_SIGNATURE(View_MeterUpdateScaleLabels, int (*)(unsigned int, std::vector<std::string> const&));
QGUI_CHECK_SIGNATURE(View_MeterUpdateVal, int (*)(unsigned int, int));
QGUI_CHECK_SIGNATURE(View_ChangeSliderLabels, int (*)(unsigned int, std::vector<std::string> const&));
QGUI_CHECK_SIGNATURE(View_ChangeSliderPos, int (*)(unsigned int, double));
QGUI_CHECK_SIGNATURE(View_CreateSlider, int (*)(View_Slider const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreatePipeline, int (*)(View_Pipeline const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_PipelineUpdateDirect, int (*)(unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_PipelineUpdateFlowShapeColor, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_PipelineUpdateFlowrate, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateQRCode, int (*)(View_QRCode const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_UpdateQRCodeContent, int (*)(unsigned int, char const*));
QGUI_CHECK_SIGNATURE(View_CreateGroup, int (*)(View_Group const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateGroupBar, int (*)());
QGUI_CHECK_SIGNATURE(View_CreateGroupIOList, int (*)(View_GroupIOList const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreatePieChart, int (*)(View_PieChart const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_PieChartUpdateData, int (*)(unsigned int, std::vector<View_ChartChnData> const&));
QGUI_CHECK_SIGNATURE(View_PieChartUpdateLegendLabels, int (*)(unsigned int, std::vector<std::string> const&));
QGUI_CHECK_SIGNATURE(View_ChangeInputParam, int (*)(unsigned int, View_Input const*));
QGUI_CHECK_SIGNATURE(View_CreateInputText, int (*)(View_Input const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateNumInputText, int (*)(View_Input const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_SetTextCursorFocus, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_SetTextCursorPosition, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_SetTextSelectCursor, int (*)(unsigned int, unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_ChangeKBoardTextContent, int (*)(unsigned int, char const*, Font const*));
QGUI_CHECK_SIGNATURE(View_CloseVirtualKeyboard, int (*)());
QGUI_CHECK_SIGNATURE(View_HideKeyBoardWidget, int (*)());
QGUI_CHECK_SIGNATURE(View_PopupVirtualKeyboard, int (*)(unsigned int, int, char const*));
QGUI_CHECK_SIGNATURE(View_SetKBoardTextCursorFocus, int (*)());
QGUI_CHECK_SIGNATURE(View_SetKBoardTextCursorPosition, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_SetKBoardTextSelectCursor, int (*)(unsigned int, unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_ShowKeyBoardWidget, int (*)(View_keyBoardData*));
QGUI_CHECK_SIGNATURE(View_AddListCtrlContent, int (*)(unsigned int, std::vector<std::string> const&, int));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlBrowseBoxParams, int (*)(unsigned int, unsigned int*));
QGUI_CHECK_SIGNATURE(
    View_ChangeListCtrlContent, int (*)(unsigned int, std::vector<std::vector<View_ListColData>> const&));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlEditMode, int (*)(unsigned int, int));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlEnableEditCol, int (*)(unsigned int, int, bool));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlEnableFilter, int (*)(unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlFont, int (*)(unsigned int, std::vector<Font*> const&));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlFontColor, int (*)(unsigned int, int, Brush const&));
QGUI_CHECK_SIGNATURE(
    View_ChangeListCtrlHideCol, int (*)(unsigned int, std::list<std::pair<int, bool>> const&));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlRowTextVisible, int (*)(unsigned int, std::list<int> const&, bool));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlSel, int (*)(unsigned int, int, int));
QGUI_CHECK_SIGNATURE(View_ChangeListCtrlTitle, int (*)(unsigned int, std::vector<View_Text> const&));
QGUI_CHECK_SIGNATURE(View_CreateListAlarm, int (*)(View_listAlarm const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateListAlarmStat, int (*)(View_listAlarmStat const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateListComErr, int (*)(View_listComErr const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateListCtrl, int (*)(View_List const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateListDbView, int (*)(View_listDbView const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateListEvent, int (*)(View_listEvent const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateListPermission, int (*)(View_listPermission const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateListRecipe, int (*)(View_listRecipe const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateListSample, int (*)(View_listSample const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_GetListCtrlContent, int (*)(unsigned int, int, int, std::vector<std::string>&));
QGUI_CHECK_SIGNATURE(View_CreateListAlarmBar, int (*)(View_listAlarmBar const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_ChangeMenuContent, int (*)(unsigned int, std::list<View_Text> const&));
QGUI_CHECK_SIGNATURE(View_ChangeMenuSelect, int (*)(unsigned int, int, View_Image const*, View_Text const*));
QGUI_CHECK_SIGNATURE(View_ChangeMenuTreeContent, int (*)(unsigned int, View_TreeNode const*));
QGUI_CHECK_SIGNATURE(View_ChangeMenuTreeSelect, int (*)(unsigned int, int, View_Text const*));
QGUI_CHECK_SIGNATURE(View_CreateMenuAlarmLevel, int (*)(View_MenuAlarmLevel const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateMenuConst, int (*)(View_MenuConst const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateMenuNotes, int (*)(View_MenuNotes const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateMenuPermission, int (*)(View_MenuPermission const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateMenuTreeAlarmGrp, int (*)(View_MenuTreeAlarmGrp const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateMenuUser, int (*)(View_MenuUser const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateMenuVar, int (*)(View_MenuVar const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_MenuPopupDropdownBox, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateInputClock, int (*)(View_InputClock const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_PopupDateTimeDialog, int (*)(unsigned int, char const*));
QGUI_CHECK_SIGNATURE(View_CreateCurveSample, int (*)(View_CurveSample const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CurveHideChannel, int (*)(unsigned int, unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_CurveSampleChangeDispNum, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_CurveSampleClearData, int (*)(unsigned int, std::vector<unsigned int> const&));
QGUI_CHECK_SIGNATURE(View_CurveSampleInit, int (*)(unsigned int, std::string const&));
QGUI_CHECK_SIGNATURE(View_CurveSamplePopData, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_CurveSamplePushData,
    int (*)(unsigned int, std::vector<std::string> const&, std::vector<std::vector<double>> const&));
QGUI_CHECK_SIGNATURE(View_CurveSampleScale, int (*)(unsigned int, unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_CurveSampleUpdateData,
    int (*)(unsigned int, std::vector<unsigned int> const&, std::vector<std::string> const&,
        std::vector<std::vector<double>> const&, unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_CurveSampleUpdateDataLabel, int (*)(unsigned int, std::vector<std::string> const&));
QGUI_CHECK_SIGNATURE(View_CurveSampleUpdateDataLimit, int (*)(unsigned int, int, unsigned char, double*));
QGUI_CHECK_SIGNATURE(View_CurveSampleResumeRealMode, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_CurveSampleSetSearchMode, int (*)(unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_RestoreCurveSampleSearchState, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateCurveXy, int (*)(View_CurveXy const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CurveXyClearData, int (*)(unsigned int, std::vector<unsigned int> const&));
QGUI_CHECK_SIGNATURE(View_CurveXyShowCursor, int (*)());
QGUI_CHECK_SIGNATURE(View_CurveXyUpdateData,
    int (*)(unsigned int, std::vector<unsigned int> const&, std::vector<std::list<FPoint>> const&));
QGUI_CHECK_SIGNATURE(View_CurveXyUpdateXLabel, int (*)(unsigned int, std::vector<std::string> const&));
QGUI_CHECK_SIGNATURE(View_CurveXyUpdateYLabel, int (*)(unsigned int, std::vector<std::string> const&));
QGUI_CHECK_SIGNATURE(View_CurveEnableCursor, int (*)(unsigned int, bool));
QGUI_CHECK_SIGNATURE(View_CurveSampleShowCursor,
    int (*)(unsigned int, std::string const&, std::vector<std::pair<unsigned short, std::string>> const&));
QGUI_CHECK_SIGNATURE(View_CurveUpdateCursorContent,
    int (*)(unsigned int, char const*, std::vector<std::vector<View_ListColData>> const&));
QGUI_CHECK_SIGNATURE(View_CurveUpdateCursorParams,
    int (*)(unsigned int, std::vector<View_Text> const&, std::vector<Font*> const&));
QGUI_CHECK_SIGNATURE(View_CurveUpdateCursorTitle, int (*)(unsigned int, View_Text const&));
QGUI_CHECK_SIGNATURE(View_ExtDevEject, int (*)(int));
QGUI_CHECK_SIGNATURE(View_PopupExtDevPlugin, int (*)(unsigned int, int));
QGUI_CHECK_SIGNATURE(View_PopupFileDialog, int (*)(unsigned int, char const*));
QGUI_CHECK_SIGNATURE(View_PopupPKGDownloadCfm, int (*)(unsigned int, int, char const*));
QGUI_CHECK_SIGNATURE(View_PopupPKGFileExplorer, int (*)(unsigned int, int));
QGUI_CHECK_SIGNATURE(View_ClosePdfWriter, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_CreatePdf, int (*)(View_Pdf const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreatePdfWriter, int (*)(unsigned int, char const*));
QGUI_CHECK_SIGNATURE(View_Export2File, int (*)(void*, std::function<void(void*)>));
QGUI_CHECK_SIGNATURE(View_PdfSetDisplayMode, int (*)(unsigned int, int));
QGUI_CHECK_SIGNATURE(View_PdfSwitchPage, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_PdfUpdateFile, int (*)(unsigned int, char const*));
QGUI_CHECK_SIGNATURE(View_PdfZoom, int (*)(unsigned int, unsigned int));
QGUI_CHECK_SIGNATURE(View_Write2Pdf,
    int (*)(
        unsigned int, std::vector<std::string> const&, std::vector<std::vector<std::string>> const&, bool));
QGUI_CHECK_SIGNATURE(View_CreateCameraIP, int (*)(View_CameraIP const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateCameraUSB, int (*)(View_CameraUSB const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateMediaPlayer, int (*)(View_MediaPlayer const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateVncClient, int (*)(View_VncClient const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_CreateWebBrowser, int (*)(View_WebBrowser const*, unsigned int));
QGUI_CHECK_SIGNATURE(View_PauseAudio, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_PlayAudio, int (*)(unsigned int, char const*, unsigned short));
QGUI_CHECK_SIGNATURE(View_StopAudio, int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(View_VncConnect, int (*)(unsigned int, char const*, char const*, unsigned short));
QGUI_CHECK_SIGNATURE(View_VncDisConnect, int (*)(unsigned int));

// identifier helpers
QGUI_CHECK_SIGNATURE(GetDeskNoFromWndId, unsigned int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(GetTypeOfOption, unsigned int (*)(unsigned int));
QGUI_CHECK_SIGNATURE(IsValidStrEncode, bool (*)(int));
QGUI_CHECK_SIGNATURE(getStorePath, char const* (*)(unsigned int));

// FTP
QGUI_CHECK_SIGNATURE(Ftp_ConfigServer, int (*)(FtpServerPrm const&));
QGUI_CHECK_SIGNATURE(Ftp_Connect, int (*)(FtpClientPrm const&));
QGUI_CHECK_SIGNATURE(Ftp_CheckState, int (*)(unsigned char));
QGUI_CHECK_SIGNATURE(Ftp_DisConnect, int (*)(unsigned char, bool));
QGUI_CHECK_SIGNATURE(Ftp_Put, int (*)(unsigned char, char const*, char const*, bool));
QGUI_CHECK_SIGNATURE(Ftp_Pull, int (*)(unsigned char, char const*, char const*, bool));
QGUI_CHECK_SIGNATURE(Ftp_TransferProgress, int (*)(unsigned char, long long*, long long*));
QGUI_CHECK_SIGNATURE(removeClient, int (*)(unsigned char));

// The scale classes are meant to be derived from, also both at once.
namespace {
struct DialWithTimeLabels : ScaleCircle, ScaleTime {
    std::string labelText(double value) const override { return ScaleTime::labelText(value); }
    std::vector<double> majorTicks() const override { return ScaleTime::majorTicks(); }
};
} // namespace
static_assert(std::is_polymorphic<ScaleCircle>::value && std::is_polymorphic<ScaleTime>::value,
    "scale classes are polymorphic");
static_assert(
    std::has_virtual_destructor<ScaleCircle>::value && std::has_virtual_destructor<ScaleTime>::value,
    "scale classes are deleted through base pointers");
static_assert(
    std::is_base_of<ScaleBase, DialWithTimeLabels>::value && !std::is_abstract<DialWithTimeLabels>::value,
    "a class deriving from both scales shares one ScaleBase");
static_assert(!std::is_abstract<ScaleCircle>::value && !std::is_abstract<ScaleTime>::value,
    "both scales can be used as they are");
