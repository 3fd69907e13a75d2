// The one place where the library's item classes are made known to QML,
// grouped by family.
#include "config/qmltypes.h"

#include "app/guishell.h"
#include "platform/xoverlay.h"
#include "platform/xpopup.h"
#include "xcomponents/qquick/xalarmtableviewcontrol.h"
#include "xcomponents/qquick/xcommontableview.h"
#include "xcomponents/qquick/xquicktableview.h"
#include "xcomponents/qquick/xalarmbarcontrol.h"
#include "xcomponents/qquick/xalarmbarmodel.h"
#include "xcomponents/qquick/xalarmtablebarheader.h"
#include "xcomponents/qquick/xalarmtablebarheadermodel.h"
#include "xcomponents/qquick/xhalarmbarcontrol.h"
#include "xcomponents/qquick/xhalarmbarrepeater.h"
#include "xcomponents/qquick/xheadermodel.h"
#include "xcomponents/qquick/baseslider.h"
#include "xcomponents/qquick/sliderruler.h"
#include "xcomponents/qquick/xbar.h"
#include "xcomponents/qquick/xgroup.h"
#include "xcomponents/qquick/xmeter.h"
#include "xcomponents/qquick/xpipeline.h"
#include "xcomponents/qquick/xquickfiledialog.h"
#include "xcomponents/qquick/xpdfview.h"
#include "xcomponents/qquick/xshapearc.h"
#include "xcomponents/qquick/xusbpackagedialog.h"
#include "xcomponents/qquick/xusbselectfiledata.h"
#include "xcomponents/qquick/xshapeimage.h"
#include "xcomponents/qquick/xshapescale.h"
#include "xcomponents/qquick/xlistmodel.h"
#include "xcomponents/qquick/xlistview.h"
#include "xcomponents/qquick/xtablefilterdlg.h"
#include "xcomponents/qquick/xtablefiltermenu.h"
#include "xcomponents/qquick/xtableheader.h"
#include "xcomponents/qquick/xsettingtoolcontrol.h"
#include "xcomponents/qquick/xtablemodel.h"
#include "xcomponents/qquick/xtableviewcontrol.h"
#include "xcomponents/qquick/lighterpopup.h"
#include "xcomponents/qquick/monotext.h"
#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xbasetext.h"
#include "xcomponents/qquick/xbasetextinputcontrol.h"
#include "xcomponents/qquick/xbutton.h"
#include "xcomponents/qquick/xcausetext.h"
#include "xcomponents/qquick/xdatetimeedit.h"
#include "xcomponents/qquick/xdisenableicon.h"
#include "xcomponents/qquick/xinvalidfeature.h"
#include "xcomponents/qquick/xlineinputtext.h"
#include "xcomponents/qquick/xlistviewcontrol.h"
#include "xcomponents/qquick/xlumodialog.h"
#include "xcomponents/qquick/xpinyinboard.h"
#include "xcomponents/qquick/xpinyindlg.h"
#include "xcomponents/qquick/xqrcode.h"
#include "xcomponents/qquick/nquicktreeview.h"
#include "xcomponents/qquick/treemodel.h"
#include "xcomponents/qquick/xquickcombobox.h"
#include "xcomponents/qquick/xquickimage.h"
#include "xcomponents/qquick/xquicktextedit.h"
#include "xcomponents/qquick/xtextedit.h"
#include "xcomponents/qquick/xtreeview.h"
#include "xcomponents/qquick/xtreeviewcontrol.h"
#include "xcomponents/qquick/curvecursor.h"
#include "xcomponents/qquick/curvemousearea.h"
#include "xcomponents/qquick/curvesamplechart.h"
#include "xcomponents/qquick/xycurvechart.h"
#include "xcomponents/qquick/xymousearea.h"
#include "xcomponents/qquick/xtumblertimemodel.h"
#include "xcomponents/qquick/xwindow.h"

#include <QtQml>

void registerQmlTypes()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    const char* uri = QGUI_QML_URI;

    // Shell and windows
    qmlRegisterType<GuiShell>(uri, 1, 0, "GuiShell");
    qmlRegisterType<XOverlay>(uri, 1, 0, "XOverlay");
    qmlRegisterType<XPopup>(uri, 1, 0, "XPopup");
    qmlRegisterType<LighterPopup>(uri, 1, 0, "LighterPopup");
    qmlRegisterType<XBaseControl>(uri, 1, 0, "XBaseControl");
    qmlRegisterType<XWindow>(uri, 1, 0, "XWindow");
    qmlRegisterType<XLumoDialog>(uri, 1, 0, "XLumoDialog");
    qmlRegisterType<XInvalidFeature>(uri, 1, 0, "XInvalidFeature");

    // Texts and buttons
    qmlRegisterType<XButton>(uri, 1, 0, "XButton");
    qmlRegisterType<XBaseText>(uri, 1, 0, "XBaseText");
    qmlRegisterType<XCauseText>(uri, 1, 0, "XCauseText");
    // the carousel text's content class is not an item of its own: QML gets the text widget
    qmlRegisterType<XCauseText>(uri, 1, 0, "XskCauseText");
    qmlRegisterType<MonoText>(uri, 1, 0, "MonoText");
    qmlRegisterType<XDisEnableIcon>(uri, 1, 0, "XDisEnableIcon");

    // Text and numeric input
    qmlRegisterUncreatableType<XBaseTextInputControl>(
        uri, 1, 0, "XBaseTextInputControl", QStringLiteral("the base of the entry fields"));
    qmlRegisterType<XLineInputText>(uri, 1, 0, "XLineInputText");
    qmlRegisterType<XTextEdit>(uri, 1, 0, "XTextEdit");
    qmlRegisterType<XQuickTextEdit>(uri, 1, 0, "XQuickTextEdit");

    // Shapes and images
    qmlRegisterType<XQuickImage>(uri, 1, 0, "XImage");
    qmlRegisterType<XShapeArc>(uri, 1, 0, "XShapeArc");
    qmlRegisterType<XQuickFileDialog>(uri, 1, 0, "XQuickFileDialog");
    qmlRegisterType<XUsbSelectFileData>(uri, 1, 0, "XUsbSelectFileData");
    qmlRegisterType<XPdfView>(uri, 1, 0, "XPdfView");
    qmlRegisterType<XUsbPackageDialog>(uri, 1, 0, "XUsbPackageDialog");
    qmlRegisterType<XShapeImage>(uri, 1, 0, "XShapeImage");
    qmlRegisterType<XShapeItem>(uri, 1, 0, "XShapeItem");
    qmlRegisterType<XShapeScale>(uri, 1, 0, "XShapeScale");
    qmlRegisterType<XMeter>(uri, 1, 0, "XMeter");
    qmlRegisterType<XPipeLine>(uri, 1, 0, "XPipeLine");
    qmlRegisterType<XBar>(uri, 1, 0, "XBar");
    qmlRegisterType<XGroup>(uri, 1, 0, "XGroup");
    qmlRegisterType<BaseSlider>(uri, 1, 0, "BaseSlider");
    qmlRegisterUncreatableType<SliderRuler>(uri, 1, 0, "SliderRuler", QStringLiteral("made by its slider"));
    qmlRegisterType<XQRCode>(uri, 1, 0, "XQRCode");

    // Virtual keyboard: the Pinyin candidate bar
    qmlRegisterType<XPinyinBoard>(uri, 1, 0, "XPinyinBoard");
    qmlRegisterType<XPinyinDlg>(uri, 1, 0, "XPinyinDlg");

    // Date and time: the clock field and the picker's tumbler columns
    qmlRegisterType<XDateTimeEdit>(uri, 1, 0, "XDateTimeEdit");
    qmlRegisterType<XTumblerTimeModel>(uri, 1, 0, "XTumblerTimeModel");

    // Tables
    qmlRegisterType<XTableViewControl>(uri, 1, 0, "XTableViewControl");
    qmlRegisterType<XAlarmTableViewControl>(uri, 1, 0, "XAlarmTableViewControl");
    qmlRegisterType<XQuickTableView>(uri, 1, 0, "XQuickTableView");
    qmlRegisterType<XCommonTableView>(uri, 1, 0, "XCommonTableView");
    qmlRegisterType<XTableHeader>(uri, 1, 0, "XTableHeader");
    qmlRegisterType<XTableFilterMenu>(uri, 1, 0, "XTableFilterMenu");
    qmlRegisterType<XTableFilterDlg>(uri, 1, 0, "XTableFilterDlg");
    qmlRegisterUncreatableType<XAlarmBar>(uri, 1, 0, "XAlarmBar", QStringLiteral("the base of the alarm bars"));
    qmlRegisterType<XAlarmBarModel>(uri, 1, 0, "XAlarmBarModel");
    qmlRegisterType<XAlarmBarControl>(uri, 1, 0, "XAlarmBarControl");
    qmlRegisterType<XHAlarmBarControl>(uri, 1, 0, "XHAlarmBarControl");
    qmlRegisterType<XHAlarmBarRepeater>(uri, 1, 0, "XHAlarmBarRepeater");
    qmlRegisterType<XListModel>(uri, 1, 0, "XListModel");
    qmlRegisterType<XHeaderModel>(uri, 1, 0, "XHeaderModel");
    qmlRegisterType<XQuickListView>(uri, 1, 0, "XQuickListView");
    qmlRegisterType<XListView>(uri, 1, 0, "XListView");
    qmlRegisterType<XAlarmTableBar>(uri, 1, 0, "XAlarmTableBar");
    qmlRegisterType<XAlarmTableBarHeader>(uri, 1, 0, "XAlarmTableBarHeader");
    qmlRegisterType<XAlarmTableBarHeaderModel>(uri, 1, 0, "XAlarmTableBarHeaderModel");
    qmlRegisterType<XTableModel>(uri, 1, 0, "XTableModel");
    qmlRegisterType<XSettingToolControl>(uri, 1, 0, "XSettingToolControl");
    // Menus: the drop-down box and its contents
    qmlRegisterType<XQuickComboBox>(uri, 1, 0, "XQuickComboBox");
    qmlRegisterType<XListViewControl>(uri, 1, 0, "XListViewControl");
    qmlRegisterType<XTreeview>(uri, 1, 0, "XTreeview");
    qmlRegisterType<TreeModel>(uri, 1, 0, "TreeModel");
    qmlRegisterType<XTreeViewControl>(uri, 1, 0, "XTreeViewControl");
    qmlRegisterType<NQuickTreeView>(uri, 1, 0, "NQuickTreeView");
    // Charts
    qmlRegisterType<CurveSampleChart>(uri, 1, 0, "CurveSampleChart");
    qmlRegisterType<CurveMouseArea>(uri, 1, 0, "CurveMouseArea");
    qmlRegisterType<CurveCursor>(uri, 1, 0, "CurveCursor");
    qmlRegisterType<XYCurveChart>(uri, 1, 0, "XYCurveChart");
    qmlRegisterType<XYMouseArea>(uri, 1, 0, "XYMouseArea");
}
