#ifndef QMLTYPES_H
#define QMLTYPES_H

/** The QML module every component of the panel imports. */
#define QGUI_QML_URI "QQuickHalvex"

/** Registers the library's item classes under "QQuickHalvex" 1.0. Safe to call more than once. */
void registerQmlTypes();

#endif // QMLTYPES_H
