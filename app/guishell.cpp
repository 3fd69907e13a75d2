#include "app/guishell.h"

#include "platform/guiqtadaptcore.h"

#include <QDirIterator>

namespace {
QPointer<GuiShell> g_shell;
}

GuiShell::GuiShell(QQuickItem* parent)
    : QQuickItem(parent)
{
    g_shell = this;
    PanelHost::install(this);
}

GuiShell::~GuiShell()
{
    PanelHost::uninstall(this);
}

GuiShell* GuiShell::instance()
{
    return g_shell.data();
}

void GuiShell::init()
{
    m_guiRect = GuiQtAdapt::Core::getChildByProp(this, "guirect");
    if (m_guiRect)
        m_guiRect->setRotation(m_windowRotation);
    Q_EMIT initialized();
}

QQuickItem* GuiShell::getGuiContent() const
{
    if (!m_guiRect)
        return nullptr;
    QQuickItem* content = m_guiRect->property("contentItem").value<QQuickItem*>();
    return content ? content : m_guiRect.data();
}

void GuiShell::setGuiRectScale(double scale)
{
    if (m_guiRect)
        m_guiRect->setScale(scale);
}

void GuiShell::setWindowRotation(double rotation)
{
    if (qFuzzyCompare(rotation, m_windowRotation)
        || (qFuzzyIsNull(rotation) && qFuzzyIsNull(m_windowRotation)))
        return;
    m_windowRotation = rotation;
    Q_EMIT windowRotationChanged();
    if (m_guiRect)
        m_guiRect->setRotation(rotation);
}

void GuiShell::addSubFolderFiles(const QString& folder, QList<QString>& out)
{
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext())
        out.append(it.next());
}
