#ifndef BENCHPANEL_H
#define BENCHPANEL_H

#include <QSize>

class PanelFixture;

/** The start of every benchmark that measures on a real panel. */
namespace Bench {

/** Frames are drawn as fast as they can, not at the display's rate: call before the application is made. */
void noVsync();
/** Registers the QML types, starts \a panel at \a size and shows window \a windowId over all of it in
 *  \a color; false when the panel cannot start. */
bool openPanel(PanelFixture& panel, QSize size, unsigned windowId, unsigned color = 0xFFFFFFFFu);

} // namespace Bench

#endif
