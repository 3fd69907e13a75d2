#include "views/curvesampledlg.h"

#include "platform/xoverlay.h"
#include "platform/xpopup.h"
#include "xcomponents/qquick/curvesamplechart.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QQuickWindow>

CurveSampleDlg* CurveSampleDlg::open(CurveSampleChart* chart, XOverlay* overlay, const QString& start, const QString& end)
{
    if (!chart || !overlay)
        return nullptr;
    auto* popup = qobject_cast<XPopup*>(XQmlComponentManage::getInstance()->createItem(
        QUrl(QStringLiteral("qrc:/datetimeset/StartEndDateTimePopup.qml")), overlay));
    if (!popup)
        return nullptr;
    popup->setOverlay(overlay);
    popup->setProperty("chartHeight", int(chart->height()));
    popup->setProperty("screenHeight", int(overlay->height()));
    QMetaObject::invokeMethod(popup, "initDateTime", Q_ARG(QVariant, start), Q_ARG(QVariant, end));
    // centred over the chart, inside the panel
    const QPointF centre = chart->mapToItem(overlay, QPointF(chart->width() / 2, chart->height() / 2));
    const qreal x = qBound<qreal>(0, centre.x() - popup->width() / 2, qMax<qreal>(0, overlay->width() - popup->width()));
    const qreal y = qBound<qreal>(0, centre.y() - popup->height() / 2, qMax<qreal>(0, overlay->height() - popup->height()));
    popup->setPosition(QPointF(int(x), int(y)));
    popup->setZ(100);
    auto* dlg = new CurveSampleDlg(chart, popup);
    popup->open();
    return dlg;
}

CurveSampleDlg::CurveSampleDlg(CurveSampleChart* chart, XPopup* popup)
    : m_chart(chart)
    , m_popup(popup)
{
    connect(popup, SIGNAL(confirm(QString, QString)), this, SLOT(onConfirm(QString, QString)));
    connect(popup, &XPopup::openedChanged, this, [this] {
        if (m_popup && !m_popup->isOpened())
            deleteLater();
    });
    connect(chart, &QObject::destroyed, this, &QObject::deleteLater);
}

CurveSampleDlg::~CurveSampleDlg()
{
    if (m_popup) {
        m_popup->close();
        m_popup->deleteLater();
    }
}

void CurveSampleDlg::onConfirm(const QString& start, const QString& end)
{
    if (m_chart)
        Q_EMIT confirmed(m_chart, start, end);
    deleteLater();
}
