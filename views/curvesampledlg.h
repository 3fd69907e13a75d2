#ifndef CURVESAMPLEDLG_H
#define CURVESAMPLEDLG_H

#include <QObject>
#include <QPointer>
#include <QString>

#include "xcomponents/qquick/curvesamplechart.h"
class XOverlay;
class XPopup;

/**
 * The search dialog of a sample curve chart: the start-end date/time popup
 * ("qrc:/datetimeset/StartEndDateTimePopup.qml") on the overlay of the
 * chart's desktop, centred over the chart and kept on the panel, preset
 * with the chart's last confirmed search. "Confirm" reports the two ends
 * (confirmed), "Cancel" nothing; either closes the dialog, which then
 * deletes itself, as does a dialog whose chart goes away.
 */
class CurveSampleDlg : public QObject {
    Q_OBJECT

public:
    /** Makes and opens the dialog; null when the popup cannot be made. */
    static CurveSampleDlg* open(CurveSampleChart* chart, XOverlay* overlay, const QString& start, const QString& end);
    ~CurveSampleDlg() override;

    XPopup* popup() const { return m_popup.data(); }
    CurveSampleChart* chart() const { return m_chart.data(); }

Q_SIGNALS:
    /** The ends chosen ("yyyy-MM-dd hh:mm:ss", an end switched off ""). */
    void confirmed(CurveSampleChart* chart, const QString& start, const QString& end);

private Q_SLOTS:
    void onConfirm(const QString& start, const QString& end);

private:
    CurveSampleDlg(CurveSampleChart* chart, XPopup* popup);

    QPointer<CurveSampleChart> m_chart;
    QPointer<XPopup> m_popup;
};

#endif // CURVESAMPLEDLG_H
