// Table benchmarks on a real panel (run under Xvfb), each against a plain
// QAbstractTableModel of strings shown in Qt Quick's own TableView with a Text
// delegate, in the same window and the same run:
//  - a page of 100 x 8 and of 1,000 x 8 cells through View_ChangeListCtrlContent
//    to the frame that shows it, against resetting the plain model to the same
//    strings, to its frame;
//  - one cell of a shown 100-row page changed per cycle to its frame, against
//    the plain model's setData + dataChanged of that cell, to its frame;
//  - the frame time while a 1,000-row page scrolls 13 px per frame, against
//    the plain TableView scrolled the same;
//  - the heap per held cell of a 1,000 x 8 page, in the cell model alone,
//    against the plain model holding the same strings.
#include "benchframe.h"
#include "benchpanel.h"
#include "benchreport.h"
#include "common/panelfixture.h"

#include "app/guiapplication.h"
#include "app/xquickview.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xcommontableview.h"
#include "xcomponents/qquick/xtablemodel.h"
#include "xcomponents/qquick/xtableviewcontrol.h"

#include <QAbstractTableModel>
#include <QElapsedTimer>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>

#include <malloc.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

class PlainModel : public QAbstractTableModel {
public:
    int rowCount(const QModelIndex& = QModelIndex()) const override { return m_rows.size(); }
    int columnCount(const QModelIndex& = QModelIndex()) const override { return 8; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? m_rows.at(index.row()).at(index.column()) : QVariant();
    }
    QHash<int, QByteArray> roleNames() const override { return { { Qt::DisplayRole, "display" } }; }
    void setPage(const QVector<QVector<QString>>& rows)
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    }
    void setCell(int row, int column, const QString& text)
    {
        m_rows[row][column] = text;
        Q_EMIT dataChanged(index(row, column), index(row, column));
    }

private:
    QVector<QVector<QString>> m_rows;
};

/** Texts of a page: "r<row>c<col>" with a round tag so that each round changes every cell. */
std::vector<std::string> texts(int rows, int round)
{
    std::vector<std::string> out;
    out.reserve(size_t(rows) * 8);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < 8; ++c)
            out.push_back(std::to_string(round) + "-r" + std::to_string(r) + "c" + std::to_string(c));
    return out;
}

} // namespace

int main(int argc, char** argv)
{
    Bench::noVsync(); // frame times, not the display's refresh
    GuiApplication app(argc, argv);
    PanelFixture panel;
    const unsigned A = PanelFixture::wid(1, 1);
    if (!Bench::openPanel(panel, QSize(1024, 600), A))
        return 1;
    QQuickView* view = panel.view();
    QQuickItem* window = ViewManage::getInstance()->windowManage()->getWindow(A);
    QQmlEngine* engine = ViewManage::getInstance()->getQmlEngine();

    // ours: a table of 8 columns in the left half
    Font font { nullptr, 14, 400, 0, 0, 0, 0, 0xFF000000u, 0 };
    std::vector<View_ListColumn> cols(8, View_ListColumn { "col", 0, 0, COL_STRING, nullptr, 0, 0 });
    View_List rec {};
    rec.rect = Rect { 0, 0, 510, 600 };
    rec.id = 10;
    rec.columns = cols.data();
    rec.columnCount = 8;
    rec.rowHeight = 28;
    rec.headerHeight = 28;
    rec.headerFont = &font;
    rec.contentFont = &font;
    View_CreateListCtrl(&rec, A);

    // the baseline: the same strings in Qt Quick's TableView in the right half
    PlainModel plain;
    engine->rootContext()->setContextProperty(QStringLiteral("plainModel"), &plain);
    QQmlComponent component(engine);
    component.setData("import QtQuick 2.15\n"
                      "TableView { clip: true; model: plainModel; columnWidthProvider: function (c) { return 63 }\n"
                      "  rowHeightProvider: function (r) { return 28 }\n"
                      "  delegate: Rectangle { color: row % 2 ? '#eeeeee' : 'white'\n"
                      "    Text { anchors.fill: parent; text: display; font.pixelSize: 14; elide: Text.ElideRight;\n"
                      "      verticalAlignment: Text.AlignVCenter; horizontalAlignment: Text.AlignHCenter } } }\n",
        QUrl());
    auto* table = qobject_cast<QQuickItem*>(component.create());
    if (!table) {
        qWarning("%s", qPrintable(component.errorString()));
        return 1;
    }
    table->setParentItem(window);
    table->setPosition(QPointF(514, 28));
    table->setSize(QSizeF(510, 572));
    Bench::settleFrames(view);

    auto ourPage = [](int rows, int round, std::vector<std::string>& keep) {
        keep = texts(rows, round);
        std::vector<std::vector<View_ListColData>> page;
        page.resize(size_t(rows));
        for (int r = 0; r < rows; ++r)
            for (int c = 0; c < 8; ++c)
                page[size_t(r)].push_back(
                    View_ListColData { keep[size_t(r * 8 + c)].c_str(), nullptr, nullptr, 0, 0 });
        return page;
    };
    auto plainPage = [](int rows, int round) {
        const std::vector<std::string> t = texts(rows, round);
        QVector<QVector<QString>> page(rows);
        for (int r = 0; r < rows; ++r)
            for (int c = 0; c < 8; ++c)
                page[r].append(QString::fromUtf8(t[size_t(r * 8 + c)].c_str()));
        return page;
    };

    for (int rows : { 100, 1000 }) {
        std::vector<double> o, b, oCall;
        for (int round = 0; round < 15; ++round) {
            std::vector<std::string> keep;
            // the conversion from the logic layer's strings is part of each side's work
            QElapsedTimer call;
            o.push_back(Bench::toFrame(view, [&] {
                call.start();
                View_ChangeListCtrlContent(10, ourPage(rows, round, keep));
                oCall.push_back(call.nsecsElapsed() / 1e6);
            }));
            Bench::settleFrames(view);
            b.push_back(Bench::toFrame(view, [&] { plain.setPage(plainPage(rows, round)); }));
            Bench::settleFrames(view);
        }
        const std::string name = "View_ChangeListCtrlContent " + std::to_string(rows) + "x8 to frame vs plain model reset";
        Bench::report(name, Bench::median(o), Bench::median(b), "ms", "<= 1.5");
        if (rows == 100)
            Bench::note("View_ChangeListCtrlContent 100x8, the call alone", Bench::median(oCall), "ms (goal under 3)");
    }

    // one cell per cycle on a shown 100-row page
    std::vector<std::string> keep;
    auto page = ourPage(100, 0, keep);
    View_ChangeListCtrlContent(10, page);
    plain.setPage(plainPage(100, 0));
    Bench::settleFrames(view);
    std::vector<double> o, b;
    std::vector<std::string> values;
    for (int i = 0; i < 60; ++i)
        values.push_back("alarm " + std::to_string(i));
    for (int i = 0; i < 60; ++i) {
        page[3][2].text = values[size_t(i)].c_str();
        o.push_back(Bench::toFrame(view, [&] { View_ChangeListCtrlContent(10, page); }));
        Bench::settleFrames(view);
        b.push_back(Bench::toFrame(view, [&] { plain.setCell(3, 2, QString::fromUtf8(values[size_t(i)].c_str())); }));
        Bench::settleFrames(view);
    }
    Bench::report("one cell of a shown 100-row page per cycle to frame vs plain dataChanged", Bench::median(o), Bench::median(b),
        "ms", "<= 1.3");

    // flicking a 1,000-row page: the frame time while both bodies scroll 13 px per frame
    {
        std::vector<std::string> keep1000;
        View_ChangeListCtrlContent(10, ourPage(1000, 99, keep1000));
        plain.setPage(plainPage(1000, 99));
        Bench::settleFrames(view);
        QQuickItem* ours = qobject_cast<XTableViewControl*>(ViewManage::getInstance()->getItemById(10))->view();
        QQuickItem* theirs = table;
        std::vector<double> fo, fb;
        qreal y = 0;
        for (int i = 0; i < 150; ++i) {
            y += 13;
            fo.push_back(Bench::toFrame(view, [&] { ours->setProperty("contentY", y); }));
            fb.push_back(Bench::toFrame(view, [&] { theirs->setProperty("contentY", y); }));
        }
        Bench::report("frame while a 1,000-row table scrolls 13 px per frame vs plain TableView", Bench::median(fo),
            Bench::median(fb), "ms", "<= 1.3");
    }

    // heap per held cell: the cell model alone against the plain model, 1,000 x 8 strings
    {
        const std::vector<std::string> t = texts(1000, 7);
        auto heap = [] { return double(mallinfo2().uordblks); };
        // each side converts the same strings inside the measured span and keeps only what its model holds
        double before = heap();
        auto* model = new XTableModel;
        model->setColumnCount(8);
        {
            QVector<QVector<XTableCell>> cells(1000, QVector<XTableCell>(8));
            for (int r = 0; r < 1000; ++r)
                for (int c = 0; c < 8; ++c)
                    cells[r][c].text = QString::fromUtf8(t[size_t(r * 8 + c)].c_str());
            model->setPage(cells);
        }
        const double oursBytes = (heap() - before) / 8000.0;
        before = heap();
        auto* plainHeld = new PlainModel;
        {
            QVector<QVector<QString>> strings(1000);
            for (int r = 0; r < 1000; ++r)
                for (int c = 0; c < 8; ++c)
                    strings[r].append(QString::fromUtf8(t[size_t(r * 8 + c)].c_str()));
            plainHeld->setPage(strings);
        }
        const double plainBytes = (heap() - before) / 8000.0;
        Bench::report("heap per held cell, 1,000 x 8 page, vs plain model of strings", oursBytes, plainBytes, "bytes",
            "<= 1.5");
        delete model;
        delete plainHeld;
    }
    delete table;
    return 0;
}
