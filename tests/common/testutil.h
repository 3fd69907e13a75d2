#ifndef TESTUTIL_H
#define TESTUTIL_H

#include <QPoint>
#include <QString>

class QQuickItem;
class QQuickView;

namespace TestUtil {

/** Folder of a helper executable built beside the tests (QGUI_BUILD_DIR/<subdir>). */
QString helperPath(const QString& subdir, const QString& name);
/** Waits (bounded) until \a view has rendered at least one frame. */
bool waitForFrame(QQuickView* view, int timeoutMs = 5000);
/** The centre of \a item in scene coordinates, rounded. */
QPoint sceneCenter(const QQuickItem* item);
/** The first visible item named \a name under \a root (\a root included), searched through the
 *  item tree so that delegates are found; hidden ones (a replaced layout's, not yet deleted) are
 *  skipped. */
QQuickItem* findItem(QQuickItem* root, const QString& name);
/** Resident memory of this process, KiB (0 when it cannot be read). */
long residentKiB();

} // namespace TestUtil

#endif // TESTUTIL_H
