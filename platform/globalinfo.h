#ifndef GLOBALINFO_H
#define GLOBALINFO_H

#include <QLocale>
#include <QObject>

/**
 * Process-wide facts shared with QML as "$GlobalInfo": the panel's current
 * locale. QML binds texts to localeName / isChinese; GlobalConfig keeps it in
 * step when the logic layer changes the language.
 */
class GlobalInfo : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString localeName READ localeName NOTIFY localeChanged)
    Q_PROPERTY(bool isChinese READ isChinese NOTIFY localeChanged)

public:
    static GlobalInfo* instance();

    QLocale locale() const { return m_locale; }
    void setLocale(const QLocale& locale);

    QString localeName() const { return m_locale.name(); }
    bool isChinese() const { return m_locale.language() == QLocale::Chinese; }

Q_SIGNALS:
    void localeChanged();

private:
    explicit GlobalInfo(QObject* parent = nullptr);

    QLocale m_locale { QLocale::English, QLocale::UnitedStates };
};

#endif // GLOBALINFO_H
