#ifndef GUIAPPLICATION_H
#define GUIAPPLICATION_H

#include <QApplication>
#include <QPointer>
#include <QString>

#include <qgui/types.h>

class CycleBeat;
class XQuickView;
class QSocketNotifier;

/**
 * The application object of the panel. It drives the logic layer's cyclic work
 * from one 10 ms timer on the GUI thread: slot 4 at every tick, and slot 5 right
 * after slot 4 at the tick that reaches the next 100 ms (never in between, where
 * it would delay the next tick). It reads the command line, prepares the project
 * folders and asks the logic layer to initialise the device.
 *
 * SIGTERM and SIGINT end the event loop cleanly (aboutToQuit runs), so a
 * service manager or the logic layer itself can stop the panel.
 */
class GuiApplication : public QApplication {
    Q_OBJECT

public:
    GuiApplication(int& argc, char** argv);
    ~GuiApplication() override;

    /** The running GuiApplication, or null. */
    static GuiApplication* instance();

    void setCallbacks(const _Main_CallBacks& callbacks) { m_callbacks = callbacks; }
    _Main_CallBacks getCallbacks() const { return m_callbacks; }

    int getRotation() const { return m_rotation; }
    void setRotation(int degrees) { m_rotation = degrees; }
    bool isPortraitOrientation() const { return m_rotation == 90 || m_rotation == 270; }
    void setupRotation() { }

    /** The panel's view; it also becomes the zoom that GlobalConfig::scale() reads. */
    void setView(XQuickView* view);
    XQuickView* view() const { return m_view; }
    /** The beat of the 10 ms cycle; frames are started right after a cycle when they would not
     *  end before the next one. */
    CycleBeat* beat() const { return m_beat; }

    /** Calls slot 2 and starts the cycle. */
    void init();
    /** Reads the command line, prepares the folders, loads the project's fonts and calls slot 1.
     *  Returns slot 1's result (0 when the slot is null); a failure runs onaboutToQuit(). */
    int deviceInit(unsigned deviceNo, const QString& a, const QString& b);
    void loadFontFile();
    /** Reads "hmifile" (made absolute) into \a projectPath and "option" into \a options; applies
     *  "rotation" and "online". Unknown options and garbage are ignored. */
    void parseCmdline(QString& projectPath, QString& options);
    /** The same on an explicit argument list (the first entry is the program). */
    void parseCmdline(const QStringList& arguments, QString& projectPath, QString& options);
    /** Splits the option text at commas into \a words (3 slots, one per kind 0..2; a later word
     *  of the same kind wins; kind 3 is ignored; unparsable parts read as 0). */
    static void parseInitOpts(const QString& options, unsigned* words);
    /** Creates the storage folders under the project, empties "disk/tmp/", prepares the fixed
     *  files under "disk/". Without a project path nothing is done. */
    static void checkPath(const QString& projectPath, const unsigned* words);
    /** Files prepared by checkPath: path under the project, size in bytes. */
    static QList<QPair<QString, qint64>> preparedFiles();

    /** Multisampling for the scene: 0 (antialiasing off) when "X_DISABLE_ANTIALIASING" reads as a
     *  non-zero integer; else "X_ANTIALIASING_SAMPLES" (at most 16), or 4 when that is unset,
     *  below 2 (which would switch antialiasing off) or not a number. */
    static int antialiasingSamples();
    /** The name of the communication server process stopped at quit. */
    static QString commServerName() { return QStringLiteral("relaybridge"); }

public Q_SLOTS:
    void onDownloadFinished(unsigned deviceNo, const QString& a, const QString& b);
    /** Stops the communication server process, waiting until it is gone. */
    void onaboutToQuit();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void installTermination();

    void runCycle();

    int m_timer10 = 0;
    CycleBeat* m_beat = nullptr;
    qint64 m_next100Ns = 0; ///< when slot 5 is next due, on the beat's clock
    _Main_CallBacks m_callbacks {};
    int m_rotation = 0;
    XQuickView* m_view = nullptr; // not owned
    QSocketNotifier* m_termNotifier = nullptr;
};

#endif // GUIAPPLICATION_H
