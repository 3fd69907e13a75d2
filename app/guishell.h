#ifndef GUISHELL_H
#define GUISHELL_H

#include <QList>
#include <QPointer>
#include <QQuickItem>
#include <QString>

#include "views/panelhost.h"

/**
 * Root item of the shell scene "qrc:/shell/halvex.qml". It holds the panel
 * control (the child item with the property "guirect"), which receives the
 * desktops, and turns it by windowRotation. The last shell constructed is the
 * one instance() returns, and the panel host of the window manager.
 */
class GuiShell : public QQuickItem, public PanelHost {
    Q_OBJECT
    Q_PROPERTY(double windowRotation READ windowRotation WRITE setWindowRotation NOTIFY windowRotationChanged)

public:
    explicit GuiShell(QQuickItem* parent = nullptr);
    ~GuiShell() override;

    static GuiShell* instance();

    /** Finds the panel control by its "guirect" property. Called by the scene when complete. */
    Q_INVOKABLE void init();
    /** The panel control, or null before init(). */
    QQuickItem* getGuiRect() const override { return m_guiRect.data(); }
    /** The item inside the panel control that receives desktops (its content item). */
    QQuickItem* getGuiContent() const override;
    void setGuiRectScale(double scale);

    double windowRotation() const { return m_windowRotation; }
    /** Ignores a value equal to the current one (fuzzy compare); else stores, emits and turns. */
    void setWindowRotation(double rotation);

    Q_INVOKABLE bool isDtpView() const { return false; }
    Q_INVOKABLE void createProPkg() { }
    /** Appends the files under \a folder (all levels) to \a out. */
    static void addSubFolderFiles(const QString& folder, QList<QString>& out);

Q_SIGNALS:
    void windowRotationChanged();
    void initialized();

private:
    QPointer<QQuickItem> m_guiRect;
    double m_windowRotation = 0.0;
};

#endif // GUISHELL_H
