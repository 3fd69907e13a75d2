// PDF writer benchmark: a 10,000-row table written through the interface (View_CreatePdfWriter,
// View_Write2Pdf, View_ClosePdfWriter), against a bare QPdfWriter + QPainter loop drawing the same
// texts at the same places (head on every page, footers, the same font) in the same run.
#include "benchreport.h"

#include "app/guiapplication.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <qgui/view.h>

#include <string>
#include <vector>

int main(int argc, char** argv)
{
    GuiApplication app(argc, argv);
    QTemporaryDir dir;
    constexpr int kRows = 10000;
    std::vector<std::vector<std::string>> rows;
    rows.reserve(kRows);
    for (int i = 0; i < kRows; ++i)
        rows.push_back({ "2026-11-23 14:" + std::to_string(10 + i % 50) + ":00", i % 3 ? "Medium" : "High",
            "Filler nozzle " + std::to_string(i % 12) + " pressure low", std::to_string(i * 0.25) });
    const std::vector<std::string> heads { "Time", "Severity", "Alarm", "Value" };
    const QByteArray ours = dir.filePath(QStringLiteral("ours.pdf")).toUtf8();
    const double oursMs = Bench::medianMs(3, [&] {
        View_CreatePdfWriter(1, ours.constData());
        View_Write2Pdf(1, heads, rows, false);
        View_ClosePdfWriter(1);
    });

    // the bare loop: the same page, font, column places and rows per page
    const double bareMs = Bench::medianMs(3, [&] {
        QPdfWriter writer(dir.filePath(QStringLiteral("bare.pdf")));
        writer.setResolution(96);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
            QPageLayout::Millimeter));
        QPainter p(&writer);
        QFont font;
        font.setFamilies({ QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans CJK SC") });
        font.setPixelSize(11);
        QFont bold = font;
        bold.setBold(true);
        const QRectF page = writer.pageLayout().paintRectPixels(96);
        const qreal h = QFontMetricsF(font).height() + 8;
        const qreal x[4] = { 0, page.width() * 0.25, page.width() * 0.4, page.width() * 0.85 };
        const qreal w[4] = { page.width() * 0.25, page.width() * 0.15, page.width() * 0.45, page.width() * 0.15 };
        int pageNo = 1;
        qreal y = 0;
        auto head = [&] {
            p.setFont(bold);
            for (int c = 0; c < 4; ++c)
                p.drawText(QRectF(x[c] + 4, 0, w[c] - 8, h), Qt::AlignLeft | Qt::AlignVCenter,
                    QString::fromStdString(heads[size_t(c)]));
            p.setFont(font);
            y = h;
        };
        head();
        for (const auto& row : rows) {
            if (y + h > page.height() - h) {
                p.drawText(QRectF(0, page.height() - h, page.width(), h), Qt::AlignCenter,
                    QStringLiteral("Page %1").arg(pageNo++));
                writer.newPage();
                head();
            }
            for (int c = 0; c < 4; ++c)
                p.drawText(QRectF(x[c] + 4, y, w[c] - 8, h), Qt::AlignLeft | Qt::AlignVCenter,
                    QString::fromStdString(row[size_t(c)]));
            p.drawLine(QLineF(0, y + h, page.width(), y + h));
            y += h;
        }
        p.drawText(QRectF(0, page.height() - h, page.width(), h), Qt::AlignCenter, QStringLiteral("Page %1").arg(pageNo));
    });
    Bench::report("write a 10,000-row table to PDF vs a bare QPdfWriter + QPainter loop", oursMs, bareMs, "ms", "<= 1.5");
    return 0;
}
