#ifndef GLOBALCONFIG_H
#define GLOBALCONFIG_H

#include <QColor>
#include <QFont>
#include <QHash>
#include <QLocale>
#include <QObject>
#include <QPair>
#include <QPen>
#include <QPointer>

class QTranslator;
class ViewScaleSource;
struct View_GlobalConfig;
struct View_InterfaceConfigue;

/**
 * Process-wide settings read by every widget; exposed to QML as "$GlobalConfig".
 */
class GlobalConfig : public QObject {
    Q_OBJECT
    Q_PROPERTY(double scale READ scale NOTIFY scaleChanged)
    Q_PROPERTY(bool antialiasing READ isAntialiasing CONSTANT)
    Q_PROPERTY(int scrollBarWidth READ getScrollBarWidth CONSTANT)
    Q_PROPERTY(bool chinese READ isChinese NOTIFY langTokenChanged)
    Q_PROPERTY(QString langToken READ langToken NOTIFY langTokenChanged)
    Q_PROPERTY(QColor defaultTextColor READ defaultTextColor NOTIFY interfaceChanged)
    Q_PROPERTY(QColor defaultBackColor READ defaultBackColor NOTIFY interfaceChanged)
    Q_PROPERTY(QColor selectionColor READ selectionColor NOTIFY interfaceChanged)
    Q_PROPERTY(QColor highlightColor READ highlightColor NOTIFY interfaceChanged)
    Q_PROPERTY(QFont defaultFont READ defaultFont NOTIFY interfaceChanged)

public:
    static GlobalConfig* getInstance();

    /** How text reaches input widgets. */
    enum InputMethod {
        VirtualKeyboard = 0, ///< the on-screen keyboard pops up (default)
        PhysicalKeyboard = 1, ///< typing on a connected keyboard, no on-screen keyboard
        Both = 2 ///< both
    };
    Q_ENUM(InputMethod)

    /** 1 selects English; every other value selects Chinese. */
    void setLocale(unsigned lang);
    void setLocale(const QLocale& locale);
    QLocale getLocale() const { return m_locale; }
    bool isChinese() const { return m_locale.language() == QLocale::Chinese; }
    QString langToken() const { return m_locale.name(); }

    void setAntialiasing(bool on) { m_antialiasing = on; }
    bool isAntialiasing() const { return m_antialiasing; }

    void setInputMethod(InputMethod m) { m_inputMethod = m; }
    InputMethod getInputMethod() const { return m_inputMethod; }

    int getScrollBarWidth() const { return m_scrollBarWidth; }
    /** Most rows a list control keeps. */
    int listRowLimit() const { return m_listRowLimit; }
    /** Longest text (characters) an input widget accepts. */
    int textLengthLimit() const { return m_textLengthLimit; }
    QPen defaultPen() const { return m_defaultPen; }
    QColor defaultTextColor() const { return m_defaultTextColor; }
    QColor defaultBackColor() const { return m_defaultBackColor; }
    QColor selectionColor() const { return m_selectionColor; }
    QColor highlightColor() const { return m_highlightColor; }
    QFont defaultFont() const { return m_defaultFont; }
    void setDefaultFont(const QFont& font) { m_defaultFont = font; }

    /** The panel's zoom: the view's root item scale, 1.0 while there is no view. The first
     *  call with a view connects scaleChanged to it. */
    double scale();
    /** Installs the view whose zoom scale() reads (null: there is no view). */
    void setScaleSource(ViewScaleSource* source);
    ViewScaleSource* scaleSource() const { return m_scaleSource; }
    /** Multi-touch gestures are not used by the widgets. */
    bool canMutiTouch() const { return false; }
    /** A pixel-snapping correction for a length \a len drawn at \a scale. */
    double pixelLock(double scale, double len) const;

    void saveCurveSampleSearchTime(unsigned id, const QPair<QString, QString>& times);
    QPair<QString, QString> getCurveSampleSearchTime(unsigned id) const;

    /** Settings from the logic layer; null records are ignored. Return 0. */
    int setGlobalConfigue(const View_GlobalConfig* cfg);
    int setInterfaceConfigue(const View_InterfaceConfigue* cfg);

Q_SIGNALS:
    void scaleChanged(double scale);
    void langTokenChanged();
    void interfaceChanged();

private:
    explicit GlobalConfig(QObject* parent = nullptr);

    QLocale m_locale { QLocale::English, QLocale::UnitedStates };
    bool m_antialiasing = true;
    InputMethod m_inputMethod = VirtualKeyboard;
    int m_scrollBarWidth = 15;
    int m_listRowLimit = 65535;
    int m_textLengthLimit = 65535;
    QPen m_defaultPen { QColor(0x33, 0x33, 0x33), 1 };
    QColor m_defaultTextColor { Qt::black };
    QColor m_defaultBackColor { Qt::white };
    QColor m_selectionColor { 0x6E, 0xA2, 0xE2 };
    QColor m_highlightColor { 0xCC, 0xE0, 0xF8 };
    QFont m_defaultFont;
    ViewScaleSource* m_scaleSource = nullptr; // not owned; the view installs and removes itself
    bool m_scaleConnected = false;
    QTranslator* m_translator = nullptr; // owned, created on the first switch to Chinese
    bool m_translatorInstalled = false;
    QHash<unsigned, QPair<QString, QString>> m_curveSearchTimes;
};

#endif // GLOBALCONFIG_H
