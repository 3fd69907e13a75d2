#ifndef GUIAPPTESTMAIN_H
#define GUIAPPTESTMAIN_H

#include <QtTest>

#include "app/guiapplication.h"
#include "config/qmltypes.h"

/**
 * A test main whose application object is the panel's own GuiApplication, as
 * in a running panel. Arguments after "--" go to the application (so a test can
 * start it with "-hmifile"); the rest go to Qt Test.
 */
#define QGUI_GUIAPP_TEST_MAIN(TestObject)                                                                    \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        QStringList testArgs;                                                                                \
        int appArgc = argc;                                                                                  \
        GuiApplication app(appArgc, argv);                                                                   \
        app.setAttribute(Qt::AA_Use96Dpi, true);                                                             \
        registerQmlTypes();                                                                                  \
        TestObject tc;                                                                                       \
        QTEST_SET_MAIN_SOURCE_PATH                                                                           \
        return QTest::qExec(                                                                                 \
            &tc, QStringList { QString::fromLocal8Bit(argv[0]) } + qgui_testArgs(argc, argv));               \
    }

inline QStringList qgui_testArgs(int argc, char** argv)
{
    QStringList out;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--") == 0)
            break;
        out << QString::fromLocal8Bit(argv[i]);
    }
    return out;
}

#endif // GUIAPPTESTMAIN_H
