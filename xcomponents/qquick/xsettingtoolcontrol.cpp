#include "xcomponents/qquick/xsettingtoolcontrol.h"

#include "platform/logiclayercaller.h"

#include <qgui/events.h>

XSettingToolControl::XSettingToolControl(QQuickItem* parent)
    : QQuickItem(parent)
{
    connect(this, &XSettingToolControl::sigGoToPage, this,
        [this](int page) { LogicLayerCaller::call(m_id, EVT_LIST_GOTO_PAGE, &page); });
}

XSettingToolControl::~XSettingToolControl() = default;

void XSettingToolControl::setWidgetId(quint32 id)
{
    if (id == m_id)
        return;
    m_id = id;
    Q_EMIT widgetIdChanged();
}

void XSettingToolControl::setNumbers(unsigned total, unsigned page, unsigned pages)
{
    m_total = QString::number(total);
    m_page = QString::number(page);
    m_pages = QString::number(pages);
    Q_EMIT numbersChanged();
}

void XSettingToolControl::setHindControlBtn(bool hide)
{
    if (hide == m_hideButtons)
        return;
    m_hideButtons = hide;
    Q_EMIT hidingChanged();
}

void XSettingToolControl::setHindPageNum(bool hide)
{
    if (hide == m_hidePage)
        return;
    m_hidePage = hide;
    Q_EMIT hidingChanged();
}

void XSettingToolControl::setHindTotalNum(bool hide)
{
    if (hide == m_hideTotal)
        return;
    m_hideTotal = hide;
    Q_EMIT hidingChanged();
}

void XSettingToolControl::home()
{
    LogicLayerCaller::call(m_id, EVT_LIST_PAGE_HOME, nullptr);
}

void XSettingToolControl::up()
{
    LogicLayerCaller::call(m_id, EVT_LIST_PAGE_UP, nullptr);
}

void XSettingToolControl::next()
{
    LogicLayerCaller::call(m_id, EVT_LIST_PAGE_NEXT, nullptr);
}

void XSettingToolControl::end()
{
    LogicLayerCaller::call(m_id, EVT_LIST_PAGE_END, nullptr);
}

void XSettingToolControl::popupVirtualKey()
{
    Q_EMIT pageEntryRequested(m_page);
}

void XSettingToolControl::goToPage(const QString& text)
{
    bool ok = false;
    const int page = text.trimmed().toInt(&ok);
    if (ok)
        Q_EMIT sigGoToPage(page);
}
