#ifndef VIEWMANAGE_H
#define VIEWMANAGE_H

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QSize>

#include <functional>
#include <list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <qgui/view.h>

class QQmlEngine;
class QQuickItem;
class LifeCycleManager;
class WidgetPropertyManage;
class QmlWindowManage;
class XQmlComponentManage;
class CurveSampleChartTimeModeController;
class CurveSampleChart;
class VkbState;
class ListState;
class PinyinState;
class PdfWriterState;
class UsbPackageState;

/**
 * The single object behind the exported View_* functions. Each export logs one
 * line and calls the method of the same name here (View_ChangeTextContent and
 * View_ChangeKBoardTextContent are View_ChangeText and View_ChangeKBText). This
 * class holds what all widgets share (the registry, the window manager, the
 * component cache) and dispatches; each widget family has its exports in
 * app/layer_view_<family>.cpp, its methods in views/viewmanage_<family>.cpp and
 * what it keeps between calls in a class of its own (see views/README.md).
 *
 * Results: 0 when done, -1 when not done; an unknown id gives the result fixed
 * for each call (see the family files). Failed internal conditions are reported
 * through Utils::writeAssertLocation as
 * "\"<condition>\" in file qgui/views/ViewManage, line N" and the call returns -1.
 */
class ViewManage : public QObject {
    Q_OBJECT

public:
    static ViewManage* getInstance();
    /** Destroys the instance (at the end of View_MainThreadLoop). */
    static void destroyInstance();
    ~ViewManage() override;

    LifeCycleManager* lifeCycle() const { return m_lifeCycle.get(); }
    WidgetPropertyManage* propertyManage() const { return m_propertyManage.get(); }
    QmlWindowManage* windowManage() const { return m_windowManage.get(); }
    XQmlComponentManage* getComponentManage() const;
    QQmlEngine* getQmlEngine() const;
    QQuickItem* getDeskTop(unsigned n) const;
    CurveSampleChartTimeModeController* getCurveSampleChartTimeModeController() const
    {
        return m_timeMode.get();
    }
    void setCurveSampleChartTimeModeController(std::unique_ptr<CurveSampleChartTimeModeController> c);
    /** The keyboard family's requester (views/vkbstate.h). */
    VkbState* vkbState() const { return m_vkb.get(); }
    /** The Pinyin candidate bar's popup (views/viewmanage_vkb.cpp). */
    PinyinState* pinyinState() const { return m_pinyin.get(); }
    /** The package dialogs up and the storage watcher. */
    UsbPackageState* usbPackages() const { return m_usbPackages.get(); }

    /** Registers a created item: clears its object parent and records it under \a id. */
    void appendItem(unsigned id, QQuickItem* item);
    /** The registered item of \a id, placed or cached; null when unknown. */
    QQuickItem* getItemById(unsigned id) const;
    /** Every item registered or shown again through the registry and not taken out with its
     *  window or deleted since, by id. */
    const QHash<unsigned, QQuickItem*>& idHash() const { return m_idHash; }
    /** Places the placeholder shown where a widget kind is not available, and registers it;
     *  \a header is the record's opacity word. */
    QQuickItem* newUnsupportFeatureImage(
        QQuickItem* parent, QPoint pos, QSize size, unsigned id, unsigned windowId, unsigned header = 0);

    /**
     * The creation path every View_Create* follows:
     *
     *     QQuickItem* window = creationParent(rec, windowId);
     *     if (!window)
     *         return -1;                        // null record or unknown window: nothing is made
     *     auto* item = new XSomething(window);  // the widget's own properties
     *     ...
     *     placeWidget(item, rec, windowId);     // rectangle, header, ids, registration
     *     return 0;
     */
    QQuickItem* creationParent(const void* rec, unsigned windowId) const;
    /** Last step of every creator: position and size from \a rect (negative sizes become 0),
     *  opacity from the header word, the widget and window ids (set once), registration. */
    void placeWidget(QQuickItem* item, unsigned id, unsigned windowId, const Rect& rect, unsigned header);
    /** The same, from any record with the common fields header, rect and id. */
    template <class Rec> void placeWidget(QQuickItem* item, const Rec* rec, unsigned windowId)
    {
        placeWidget(item, rec->id, windowId, rec->rect, rec->header);
    }

    // ---- generic: generic widget operations (app/layer_view_generic.cpp, views/viewmanage_generic.cpp)
    int View_ChangeOpacity(unsigned int id, unsigned char percent);
    int View_ClrBusy(unsigned int id);
    int View_ClrDisableFlag(unsigned int id, unsigned int flags);
    int View_ClrInputFlag(unsigned int id);
    int View_ClrInputMode(unsigned int id);
    int View_DeleteWidgets(const std::list<unsigned int>& ids);
    int View_GetWgtRect(unsigned int id, Rect& rect);
    int View_HideWidget(unsigned int id, ItemSlashType type);
    int View_MoveWidget(unsigned int id, int x, int y);
    int View_SetBusy(unsigned int id);
    int View_SetDisableFlag(unsigned int id, unsigned int flags);
    int View_SetInputFlag(unsigned int id);
    int View_SetInputMode(unsigned int id, bool on);
    int View_SetWidgetParent(unsigned int id, unsigned int parentId);
    int View_ShowWidget(unsigned int id, unsigned int fromCache, ItemSlashType type);

    // ---- window: desktops, windows, popups, message box, brightness, busy bar (app/layer_view_window.cpp,
    // views/viewmanage_window.cpp)
    int View_ChangeWindowTitle(unsigned int windowId, const char* title);
    int View_CloseDesktop(unsigned int desktopNo);
    int View_CloseWindow(unsigned int windowId);
    int View_CreateDesktop(const Size& size, unsigned int desktopNo);
    int View_GetTitleBarHeight(unsigned int windowId, int& height);
    int View_GetWindowRect(unsigned int windowId, Rect& rect);
    int View_HideDesktop(unsigned int desktopNo);
    int View_HideProcess(unsigned int id);
    int View_PopupMsg(const char* text, unsigned int life);
    int View_PopupWindow(View_Window* window, unsigned int windowId, View_Popup* popup, int flags);
    int View_SetDialogMoveControl(unsigned int windowId, bool movable);
    int View_SetLight(int percent);
    int View_SetWindowParent(unsigned int windowId, unsigned int parentId);
    int View_ShowDesktop(unsigned int desktopNo);
    int View_ShowProcess(unsigned int id, unsigned int modal, unsigned int reserved);
    int View_ShowWindow(unsigned int windowId, bool show);
    int View_SwitchWindow(View_Window* window);
    int View_WindowShowAndMove(unsigned int windowId, int x, int y);

    // ---- config: configuration (app/layer_view_config.cpp, views/viewmanage_config.cpp)
    int View_SetGlobalConfigue(View_GlobalConfig* config);
    int View_SetInterfaceConfigue(View_InterfaceConfigue* config);

    // ---- button: button (app/layer_view_button.cpp, views/viewmanage_button.cpp)
    int View_ChangeButtonParam(unsigned int id, const View_ImageText* rec);
    int View_CreateButton(const View_ImageText* rec, unsigned int windowId);

    // ---- text: texts (app/layer_view_text.cpp, views/viewmanage_text.cpp)
    int View_CarouselText(unsigned int id, int dx, int dy);
    int View_ChangeFontColor(unsigned int id, const Brush* brush);
    int View_ChangeText(unsigned int id, const char* text, const Font* font);
    int View_ChangeTextParam(unsigned int id, const View_Text* rec);
    int View_ChangeTitle(unsigned int id, const View_Text* rec);
    int View_CreateText(const View_Text* rec, unsigned int windowId);
    int View_IsTextOutOfRange(unsigned int id, int direction);

    // ---- shape: graphic shapes (app/layer_view_shape.cpp, views/viewmanage_shape.cpp)
    int View_ChangePen(unsigned int id, const Pen* pen);
    int View_CreateGraphArc(const View_GraphArc* rec, unsigned int windowId);
    int View_CreateGraphBezierCurve(const View_GraphBezierCurve* rec, unsigned int windowId);
    int View_CreateGraphEllipse(const View_GraphEllipse* rec, unsigned int windowId);
    int View_CreateGraphGrid(const View_GraphGrid* rec, unsigned int windowId);
    int View_CreateGraphPie(const View_GraphPie* rec, unsigned int windowId);
    int View_CreateGraphPolygon(const View_GraphPolygon* rec, unsigned int windowId);
    int View_CreateGraphPolyline(const View_GraphPolyline* rec, unsigned int windowId);
    int View_CreateGraphRect(const View_GraphRect* rec, unsigned int windowId);
    int View_CreateGraphScale(const View_GraphScale* rec, unsigned int windowId);
    int View_FillWidget(unsigned int id, int direction, int value, int maximum, Brush brush);
    int View_RotateWidget(unsigned int id, int angle, int origin);
    int View_ZoomWidget(unsigned int id, int width, int height, int origin);

    // ---- image: image (app/layer_view_image.cpp, views/viewmanage_image.cpp)
    int View_CreateImage(const View_Image* rec, unsigned int windowId);

    // ---- bar: bar (app/layer_view_bar.cpp, views/viewmanage_bar.cpp)
    int View_BarUpdateOrigin(unsigned int id, unsigned char percent);
    int View_BarUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels);
    int View_BarUpdateTarget(unsigned int id, unsigned char low, unsigned char high);
    int View_BarUpdateVar(unsigned int id, unsigned char bar, const char* value, const Brush& brush);
    int View_CreateBar(const View_Bar* rec, unsigned int windowId);

    // ---- meter: meter (app/layer_view_meter.cpp, views/viewmanage_meter.cpp)
    int View_CreateGroupMeter();
    int View_CreateMeter(const View_Meter* rec, unsigned int windowId);
    int View_MeterUpdateAlarmRange(unsigned int id, int low, int high);
    int View_MeterUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels);
    int View_MeterUpdateVal(unsigned int id, int value);

    // ---- slider: slider (app/layer_view_slider.cpp, views/viewmanage_slider.cpp)
    int View_ChangeSliderLabels(unsigned int id, const std::vector<std::string>& labels);
    int View_ChangeSliderPos(unsigned int id, double value);
    int View_CreateSlider(const View_Slider* rec, unsigned int windowId);

    // ---- pipeline: pipeline (app/layer_view_pipeline.cpp, views/viewmanage_pipeline.cpp)
    int View_CreatePipeline(const View_Pipeline* rec, unsigned int windowId);
    int View_PipelineUpdateDirect(unsigned int id, bool reverse);
    int View_PipelineUpdateFlowShapeColor(unsigned int id, unsigned int color);
    int View_PipelineUpdateFlowrate(unsigned int id, unsigned int rate);

    // ---- qrcode: QR code (app/layer_view_qrcode.cpp, views/viewmanage_qrcode.cpp)
    int View_CreateQRCode(const View_QRCode* rec, unsigned int windowId);
    int View_UpdateQRCodeContent(unsigned int id, const char* text);

    // ---- group: pie chart and groups (app/layer_view_group.cpp, views/viewmanage_group.cpp)
    int View_CreateGroup(const View_Group* rec, unsigned int windowId);
    int View_CreateGroupBar();
    int View_CreateGroupIOList(const View_GroupIOList* rec, unsigned int windowId);
    int View_CreatePieChart(const View_PieChart* rec, unsigned int windowId);
    int View_PieChartUpdateData(unsigned int id, const std::vector<View_ChartChnData>& data);
    int View_PieChartUpdateLegendLabels(unsigned int id, const std::vector<std::string>& labels);

    // ---- input: text and numeric input (app/layer_view_input.cpp, views/viewmanage_input.cpp)
    int View_ChangeInputParam(unsigned int id, const View_Input* rec);
    int View_CreateInputText(const View_Input* rec, unsigned int windowId);
    int View_CreateNumInputText(const View_Input* rec, unsigned int windowId);
    int View_SetTextCursorFocus(unsigned int id);
    int View_SetTextCursorPosition(unsigned int id, unsigned int position);
    int View_SetTextSelectCursor(unsigned int id, unsigned int start, unsigned int end);

    // ---- vkb: virtual keyboard and Pinyin candidate bar (app/layer_view_vkb.cpp, views/viewmanage_vkb.cpp)
    int View_ChangeKBText(unsigned int windowId, const char* text, const Font* font);
    int View_CloseVirtualKeyboard();
    int View_HideKeyBoardWidget();
    int View_PopupVirtualKeyboard(unsigned int id, int type, const char* text);
    int View_SetVirtualKeyboardValidator(int kind);
    int View_SetVirtualKeyboardRangeI(long long bottom, long long top);
    int View_SetVirtualKeyboardRangeU(unsigned long long bottom, unsigned long long top);
    int View_SetVirtualKeyboardRangeD(double bottom, double top);
    int View_SetKBoardTextCursorFocus();
    int View_SetKBoardTextCursorPosition(unsigned int windowId, unsigned int position);
    int View_SetKBoardTextSelectCursor(unsigned int windowId, unsigned int start, unsigned int end);
    int View_ShowKeyBoardWidget(View_keyBoardData* data);

    // ---- list: list controls (app/layer_view_list.cpp, views/viewmanage_list.cpp)
    /** The one creation path of every table kind. */
    int createTable(const View_List* rec, unsigned int windowId, bool singleLine, bool alarms = false);
    int View_AddListCtrlContent(unsigned int id, const std::vector<std::string>& row, int position);
    int View_ChangeListCtrlBrowseBoxParams(unsigned int id, unsigned int* values);
    int View_ChangeListCtrlContent(unsigned int id, const std::vector<std::vector<View_ListColData>>& rows);
    int View_ChangeListCtrlEditMode(unsigned int id, int mode);
    int View_ChangeListCtrlEnableEditCol(unsigned int id, int column, bool enable);
    int View_ChangeListCtrlEnableFilter(unsigned int id, bool enable);
    int View_ChangeListCtrlFont(unsigned int id, const std::vector<Font*>& fonts);
    int View_ChangeListCtrlFontColor(unsigned int id, int column, const Brush& brush);
    int View_ChangeListCtrlHideCol(unsigned int id, const std::list<std::pair<int, bool>>& columns);
    int View_ChangeListCtrlRowTextVisible(unsigned int id, const std::list<int>& rows, bool visible);
    int View_ChangeListCtrlSel(unsigned int id, int row, int column);
    int View_ChangeListCtrlTitle(unsigned int id, const std::vector<View_Text>& titles);
    int View_CreateListAlarm(const View_listAlarm* rec, unsigned int windowId);
    int View_CreateListAlarmStat(const View_listAlarmStat* rec, unsigned int windowId);
    int View_CreateListComErr(const View_listComErr* rec, unsigned int windowId);
    int View_CreateListCtrl(const View_List* rec, unsigned int windowId);
    int View_CreateListDbView(const View_listDbView* rec, unsigned int windowId);
    int View_CreateListEvent(const View_listEvent* rec, unsigned int windowId);
    int View_CreateListPermission(const View_listPermission* rec, unsigned int windowId);
    int View_CreateListRecipe(const View_listRecipe* rec, unsigned int windowId);
    int View_CreateListSample(const View_listSample* rec, unsigned int windowId);
    int View_GetListCtrlContent(unsigned int id, int row, int column, std::vector<std::string>& out);

    // ---- alarmbar: alarm bar (app/layer_view_alarmbar.cpp, views/viewmanage_alarmbar.cpp)
    int View_CreateListAlarmBar(const View_listAlarmBar* rec, unsigned int windowId);

    // ---- menu: menus (app/layer_view_menu.cpp, views/viewmanage_menu.cpp)
    int View_ChangeMenuContent(unsigned int id, const std::list<View_Text>& entries);
    int View_ChangeMenuSelect(unsigned int id, int index, const View_Image* image, const View_Text* text);
    int View_ChangeMenuTreeContent(unsigned int id, const View_TreeNode* root);
    int View_ChangeMenuTreeSelect(unsigned int id, int index, const View_Text* text);
    int View_CreateMenuAlarmLevel(const View_MenuAlarmLevel* rec, unsigned int windowId);
    int View_CreateMenuConst(const View_MenuConst* rec, unsigned int windowId);
    int View_CreateMenuNotes(const View_MenuNotes* rec, unsigned int windowId);
    int View_CreateMenuPermission(const View_MenuPermission* rec, unsigned int windowId);
    int View_CreateMenuTreeAlarmGrp(const View_MenuTreeAlarmGrp* rec, unsigned int windowId);
    int View_CreateMenuUser(const View_MenuUser* rec, unsigned int windowId);
    int View_CreateMenuVar(const View_MenuVar* rec, unsigned int windowId);
    int View_MenuPopupDropdownBox(unsigned int id);
    /** The one creator of the seven menu kinds: the drop-down box, or with MENU_IN_PLACE the content
     *  view alone; -1 for a null record or an unknown window. */
    int View_CreateCombobox(const View_Menu* rec, unsigned int windowId);

    // ---- datetime: date and time (app/layer_view_datetime.cpp, views/viewmanage_datetime.cpp)
    int View_CreateInputClock(const View_InputClock* rec, unsigned int windowId);
    int View_PopupDateTimeDialog(unsigned int id, const char* text);

    // ---- curvesample: sample curve chart (app/layer_view_curvesample.cpp, views/viewmanage_curvesample.cpp)
    int View_CreateCurveSample(const View_CurveSample* rec, unsigned int windowId);
    int View_CurveHideChannel(unsigned int id, unsigned int channel, bool hide);
    int View_CurveSampleChangeDispNum(unsigned int id, unsigned int count);
    int View_CurveSampleClearData(unsigned int id, const std::vector<unsigned int>& channels);
    int View_CurveSampleInit(unsigned int id, const std::string& text);
    int View_CurveSamplePopData(unsigned int id, unsigned int count);
    int View_CurveSamplePushData(unsigned int id, const std::vector<std::string>& labels,
        const std::vector<std::vector<double>>& values);
    int View_CurveSampleScale(unsigned int id, unsigned int percent, unsigned int reserved);
    int View_CurveSampleUpdateData(unsigned int id, const std::vector<unsigned int>& channels,
        const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values,
        unsigned int start, bool last);
    int View_CurveSampleUpdateDataLabel(unsigned int id, const std::vector<std::string>& labels);
    int View_CurveSampleUpdateDataLimit(
        unsigned int id, int dataType, unsigned char decimals, double* limits);

    // ---- curvesearch: curve history search (app/layer_view_curvesearch.cpp,
    // views/viewmanage_curvesearch.cpp)
    int View_CurveSampleResumeRealMode(unsigned int id);
    int View_CurveSampleSetSearchMode(unsigned int id, bool on);
    int View_RestoreCurveSampleSearchState(unsigned int id);

    // ---- curvexy: XY curve (app/layer_view_curvexy.cpp, views/viewmanage_curvexy.cpp)
    int View_CreateCurveXy(const View_CurveXy* rec, unsigned int windowId);
    int View_CurveXyClearData(unsigned int id, const std::vector<unsigned int>& channels);
    int View_CurveXyShowCursor();
    int View_CurveXyUpdateData(unsigned int id, const std::vector<unsigned int>& channels,
        const std::vector<std::list<FPoint>>& points);
    int View_CurveXyUpdateXLabel(unsigned int id, const std::vector<std::string>& labels);
    int View_CurveXyUpdateYLabel(unsigned int id, const std::vector<std::string>& labels);

    // ---- curvecursor: curve cursor (app/layer_view_curvecursor.cpp, views/viewmanage_curvecursor.cpp)
    int View_CurveEnableCursor(unsigned int id, bool enable);
    int View_CurveSampleShowCursor(unsigned int id, const std::string& title,
        const std::vector<std::pair<unsigned short, std::string>>& rows);
    int View_CurveUpdateCursorContent(
        unsigned int id, const char* title, const std::vector<std::vector<View_ListColData>>& rows);
    int View_CurveUpdateCursorParams(
        unsigned int id, const std::vector<View_Text>& heads, const std::vector<Font*>& fonts);
    int View_CurveUpdateCursorTitle(unsigned int id, const View_Text& title);

    // ---- package: packages, external devices, file dialog (app/layer_view_package.cpp,
    // views/viewmanage_package.cpp)
    int View_ExtDevEject(int storeNo);
    int View_PopupExtDevPlugin(unsigned int id, int storeNo);
    int View_PopupFileDialog(unsigned int id, const char* path);
    int View_PopupPKGDownloadCfm(unsigned int id, int storeNo, const char* path);
    int View_PopupPKGFileExplorer(unsigned int id, int storeNo);

    // ---- pdf: PDF viewer and writer, export (app/layer_view_pdf.cpp, views/viewmanage_pdf.cpp)
    int View_ClosePdfWriter(unsigned int id);
    int View_CreatePdf(const View_Pdf* rec, unsigned int windowId);
    int View_CreatePdfWriter(unsigned int id, const char* path);
    int View_Export2File(void* context, std::function<void(void*)> work);
    int View_PdfSetDisplayMode(unsigned int id, int mode);
    int View_PdfSwitchPage(unsigned int id, unsigned int page);
    int View_PdfUpdateFile(unsigned int id, const char* path);
    int View_PdfZoom(unsigned int id, unsigned int percent);
    int View_Write2Pdf(unsigned int id, const std::vector<std::string>& heads,
        const std::vector<std::vector<std::string>>& rows, bool newPage);

    // ---- placeholder: cameras, media, remote desktop, web (placeholders where not available), audio
    // (app/layer_view_placeholder.cpp, views/viewmanage_placeholder.cpp)
    int View_CreateCameraIP(const View_CameraIP* rec, unsigned int windowId);
    int View_CreateCameraUSB(const View_CameraUSB* rec, unsigned int windowId);
    int View_CreateMediaPlayer(const View_MediaPlayer* rec, unsigned int windowId);
    int View_CreateVncClient(const View_VncClient* rec, unsigned int windowId);
    int View_CreateWebBrowser(const View_WebBrowser* rec, unsigned int windowId);
    int View_PauseAudio(unsigned int id);
    int View_PlayAudio(unsigned int id, const char* path, unsigned short times);
    int View_StopAudio(unsigned int id);
    int View_VncConnect(unsigned int id, const char* host, const char* password, unsigned short port);
    int View_VncDisConnect(unsigned int id);

private:
    ViewManage();
    /** Creator of the kinds this panel shows as a placeholder naming them. */
    template <class Rec> int createPlaceholder(const Rec* rec, unsigned windowId, const char* name)
    {
        return rec ? createPlaceholder(rec->header, rec->rect, rec->id, windowId, name) : -1;
    }
    int createPlaceholder(
        unsigned header, const Rect& rect, unsigned id, unsigned windowId, const char* name);
    /** The sample curve chart of \a id; null for an unknown id or another kind. */
    CurveSampleChart* curveSampleChart(unsigned int id) const;
    /** View_CurveHideChannel on an item that is not a sample chart: an XY curve hides its curve. */
    int hideXyCurve(QQuickItem* item, unsigned int channel, bool hide);

    // members in order of construction
    std::unique_ptr<LifeCycleManager> m_lifeCycle;
    std::unique_ptr<WidgetPropertyManage> m_propertyManage;
    std::unique_ptr<QmlWindowManage> m_windowManage;
    std::unique_ptr<CurveSampleChartTimeModeController> m_timeMode;
    std::unique_ptr<PinyinState> m_pinyin;
    QHash<unsigned, QQuickItem*> m_idHash;
    std::unique_ptr<VkbState> m_vkb;
    std::unique_ptr<ListState> m_list; // after m_vkb: it refers to it
    std::unique_ptr<PdfWriterState> m_pdfWriters;
    std::unique_ptr<UsbPackageState> m_usbPackages; // after m_windowManage: it shows its dialogs
};

#endif // VIEWMANAGE_H
