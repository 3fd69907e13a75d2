// Menu benchmarks on a real panel (run under Xvfb):
//  - creating 100 drop-down menus of 10 entries against 100 Qt Quick Controls
//    ComboBoxes with the same model;
//  - the per-cycle call, View_ChangeMenuSelect on 100 menus, against setting
//    the current index of 100 ComboBoxes;
//  - a tree content of 10,000 nodes (100 groups of 99 entries) replaced with
//    View_ChangeMenuTreeContent, against filling a QStandardItemModel.
#include "benchpanel.h"
#include "benchreport.h"
#include "common/panelfixture.h"

#include "app/guiapplication.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QStandardItemModel>
#include <QStringList>

#include <algorithm>
#include <list>
#include <vector>

int main(int argc, char** argv)
{
    GuiApplication app(argc, argv);
    PanelFixture panel;
    const unsigned A = PanelFixture::wid(1, 1);
    if (!Bench::openPanel(panel, QSize(1024, 600), A))
        return 1;
    QQuickItem* window = ViewManage::getInstance()->windowManage()->getWindow(A);
    QQmlEngine* engine = ViewManage::getInstance()->getQmlEngine();

    constexpr int kMenus = 100;
    const Font font { nullptr, 14, 400, 0, 0, 0, 0, 0xFF202020u, QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER };
    std::vector<QByteArray> texts;
    QStringList names;
    for (int i = 0; i < 10; ++i) {
        texts.push_back("entry " + QByteArray::number(i));
        names << QString::fromLatin1(texts.back());
    }
    std::list<View_Text> entries;
    for (const QByteArray& t : texts)
        entries.push_back(View_Text { 0, Rect {}, 0, t.constData(), nullptr, nullptr });
    auto box = [](int i) { return Rect { (i % 10) * 100, (i / 10) * 40, 96, 36 }; };

    QQmlComponent comboComponent(engine);
    comboComponent.setData("import QtQuick.Controls 2.15\nComboBox {}", QUrl());
    std::list<unsigned> ids;
    std::vector<QQuickItem*> plain;
    std::vector<double> o, b, uo, ub;
    for (int r = 0; r < 5; ++r) {
        unsigned id = 1000;
        o.push_back(Bench::medianMs(1, [&] {
            for (int i = 0; i < kMenus; ++i, ++id) {
                View_MenuConst rec {};
                rec.menu.rect = box(i);
                rec.menu.id = id;
                rec.menu.font = &font;
                rec.menu.popHeight = 200;
                rec.menu.rowHeight = 28;
                View_CreateMenuConst(&rec, A);
                View_ChangeMenuContent(id, entries);
                ids.push_back(id);
            }
        }));
        b.push_back(Bench::medianMs(1, [&] {
            for (int i = 0; i < kMenus; ++i) {
                auto* c = qobject_cast<QQuickItem*>(comboComponent.create());
                c->setParentItem(window);
                const Rect rr = box(i);
                c->setPosition(QPointF(rr.x, rr.y));
                c->setSize(QSizeF(rr.width, rr.height));
                c->setProperty("model", names);
                plain.push_back(c);
            }
        }));
        int n = r;
        uo.push_back(Bench::medianMs(1, [&] {
            for (unsigned i : ids) {
                const View_Text t { 0, Rect {}, 0, texts[size_t(n % 10)].constData(), nullptr, nullptr };
                View_ChangeMenuSelect(i, n % 10, nullptr, &t);
            }
        }));
        ub.push_back(Bench::medianMs(1, [&] {
            for (QQuickItem* c : plain)
                c->setProperty("currentIndex", n % 10);
        }));
        View_DeleteWidgets(ids);
        ids.clear();
        qDeleteAll(plain);
        plain.clear();
        PanelFixture::settle();
    }
    std::sort(o.begin(), o.end());
    std::sort(b.begin(), b.end());
    std::sort(uo.begin(), uo.end());
    std::sort(ub.begin(), ub.end());
    Bench::report("View_CreateMenuConst + content x100 vs ComboBox x100", o[2], b[2], "ms", "<= 1.5");
    Bench::report("View_ChangeMenuSelect x100 vs ComboBox currentIndex x100", uo[2], ub[2], "ms", "<= 3");

    // ---- a tree of 10,000 nodes
    View_MenuTreeAlarmGrp tree {};
    tree.menu.rect = Rect { 10, 10, 300, 400 };
    tree.menu.id = 5000;
    tree.menu.flags = MENU_TREE | MENU_IN_PLACE;
    tree.menu.font = &font;
    tree.menu.rowHeight = 28;
    View_CreateMenuTreeAlarmGrp(&tree, A);
    std::vector<View_TreeNode> leaves(100 * 99);
    std::vector<View_TreeNode> groups(100);
    for (int g = 0; g < 100; ++g) {
        for (int l = 0; l < 99; ++l)
            leaves[size_t(g * 99 + l)] = View_TreeNode { "alarm", nullptr, g * 100 + l, 0, nullptr, 0 };
        groups[size_t(g)] = View_TreeNode { "group", nullptr, g, 1, &leaves[size_t(g * 99)], 99 };
    }
    const View_TreeNode root { "", nullptr, -1, 1, groups.data(), 100 };
    const double ours = Bench::medianMs(5, [&] { View_ChangeMenuTreeContent(5000, &root); });
    const double base = Bench::medianMs(5, [&] {
        QStandardItemModel model;
        for (int g = 0; g < 100; ++g) {
            auto* group = new QStandardItem(QStringLiteral("group"));
            for (int l = 0; l < 99; ++l)
                group->appendRow(new QStandardItem(QStringLiteral("alarm")));
            model.appendRow(group);
        }
    });
    Bench::report("View_ChangeMenuTreeContent 10000 nodes vs QStandardItemModel", ours, base, "ms", "<= 2");
    return 0;
}
