#include "testutil.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QTest>

#include <unistd.h>

namespace TestUtil {

QString helperPath(const QString& subdir, const QString& name)
{
    QString build = qEnvironmentVariable("QGUI_BUILD_DIR");
    if (build.isEmpty())
        build = QCoreApplication::applicationDirPath() + QStringLiteral("/../..");
    return QDir(build).filePath(subdir + QLatin1Char('/') + name);
}

bool waitForFrame(QQuickView* view, int timeoutMs)
{
    if (!view->isVisible())
        view->show();
    if (!QTest::qWaitForWindowExposed(view, timeoutMs))
        return false;
    QSignalSpy spy(view, &QQuickWindow::frameSwapped);
    view->update();
    return spy.count() > 0 || spy.wait(timeoutMs);
}

long residentKiB()
{
    QFile f(QStringLiteral("/proc/self/statm"));
    if (!f.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = f.readAll().split(' ');
    return fields.size() > 1 ? fields.at(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024) : 0;
}

QPoint sceneCenter(const QQuickItem* item)
{
    const QPointF p = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    return p.toPoint();
}

QQuickItem* findItem(QQuickItem* root, const QString& name)
{
    if (!root)
        return nullptr;
    if (root->objectName() == name && root->isVisible())
        return root;
    const auto children = root->childItems();
    for (QQuickItem* child : children) {
        if (QQuickItem* found = findItem(child, name))
            return found;
    }
    return nullptr;
}

} // namespace TestUtil
