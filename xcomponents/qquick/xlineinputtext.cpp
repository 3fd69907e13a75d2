#include "xcomponents/qquick/xlineinputtext.h"

#include "config/globalconfig.h"
#include "platform/guiqtadaptcore.h"

#include <QtQuick/private/qquickanchors_p.h>
#include <QtQuick/private/qquickanchors_p_p.h>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qquicktext_p.h>
#include <QtQuick/private/qquicktextinput_p.h>

namespace {

QQuickTextInput::HAlignment hAlignOf(int flags)
{
    switch (flags & 0x1F) {
    case 0x02:
        return QQuickTextInput::AlignRight;
    case 0x04:
        return QQuickTextInput::AlignHCenter;
    default:
        return QQuickTextInput::AlignLeft;
    }
}

QQuickTextInput::VAlignment vAlignOf(int flags)
{
    switch (flags & 0x1E0) {
    case 0x20:
        return QQuickTextInput::AlignTop;
    case 0x40:
        return QQuickTextInput::AlignBottom;
    default:
        return QQuickTextInput::AlignVCenter;
    }
}

} // namespace

XLineInputText::XLineInputText(QQuickItem* parent)
    : XBaseTextInputControl(parent)
    , m_line(new QQuickTextInput(this))
{
    // the line shows; presses and keys belong to the field (the keyboard has its own entry line)
    m_line->setAcceptedMouseButtons(Qt::NoButton);
    m_line->setAcceptTouchEvents(false);
    m_line->setFocusOnPress(false);
    // not read-only: that switch asks the system clipboard whether pasting is possible, a round
    // trip to the display server for every field; the line never takes focus, so no key reaches it
    m_line->setPersistentSelection(true); // a selection shows without focus
    m_line->setSelectByMouse(false);
    m_line->setSelectionColor(GlobalConfig::getInstance()->selectionColor());
    m_line->setSelectedTextColor(Qt::white);
    m_line->setClip(true);
    m_line->setMaxLength(kMaxFieldText);
    m_line->setCursorVisible(false);
    m_line->setWidth(width()); // the height is the text's own: the vertical anchors place it
    m_line->setFont(font());

    setAlignment(0x01 | 0x80, 0, 0);
    connect(this, &QQuickItem::widthChanged, this, [this] {
        m_line->setWidth(width());
        if (m_slash)
            m_slash->setWidth(width());
    });
    connect(this, &QQuickItem::heightChanged, this, [this] {
        if (m_slash)
            m_slash->setHeight(height());
    });
    connect(this, &QQuickControl::fontChanged, this, [this] {
        m_line->setFont(font());
        if (m_slash)
            m_slash->setFont(font());
    });
    connect(m_line, &QQuickTextInput::textChanged, this, &XBaseTextInputControl::textChanged);
}

XLineInputText::~XLineInputText() = default;

void XLineInputText::setText(const QString& text)
{
    m_line->setText(GuiQtAdapt::Core::cutText(text, kMaxFieldText));
}

QString XLineInputText::text() const
{
    return m_line->text();
}

void XLineInputText::select(int start, int end)
{
    const int n = m_line->text().size();
    m_line->select(qBound(0, start, n), qBound(0, end, n));
}

void XLineInputText::setCursorPosition(int position)
{
    m_line->setCursorPosition(qBound(0, position, m_line->text().size()));
}

QQuickText* XLineInputText::slashItem()
{
    if (!m_slash) {
        m_slash = new QQuickText(this);
        m_slash->setZ(1);
        m_slash->setAcceptedMouseButtons(Qt::NoButton);
        m_slash->setHAlign(QQuickText::AlignHCenter);
        m_slash->setVAlign(QQuickText::AlignVCenter);
        m_slash->setFont(font());
        m_slash->setColor(m_line->color());
        m_slash->setSize(size());
        m_slash->setVisible(false);
    }
    return m_slash;
}

void XLineInputText::showSlashItem()
{
    slashItem()->setText(slashText());
    m_slash->setVisible(true);
}

void XLineInputText::hideSlashItem()
{
    if (!m_slash)
        return;
    m_slash->setText(QString());
    m_slash->setVisible(false);
}

bool XLineInputText::cursorShown() const
{
    return m_line->isCursorVisible();
}

void XLineInputText::setCursorShown(bool shown)
{
    m_line->setCursorVisible(shown);
}

void XLineInputText::applyTextColor(const QColor& color)
{
    m_line->setColor(color);
    if (m_slash)
        m_slash->setColor(color);
}

void XLineInputText::setAlignment(int flags, int hMargin, int vMargin)
{
    QQuickAnchors* anchors = QQuickItemPrivate::get(m_line)->anchors();
    anchors->resetLeft();
    anchors->resetRight();
    anchors->resetHorizontalCenter();
    anchors->resetTop();
    anchors->resetBottom();
    anchors->resetVerticalCenter();
    anchors->resetLeftMargin();
    anchors->resetRightMargin();
    anchors->resetTopMargin();
    anchors->resetBottomMargin();
    anchors->setMargins(0);

    QQuickItemPrivate* parent = QQuickItemPrivate::get(this);
    switch (flags & 0x1F) {
    case 0x01:
        anchors->setLeft(parent->left());
        anchors->setLeftMargin(hMargin);
        break;
    case 0x02:
        anchors->setRight(parent->right());
        anchors->setRightMargin(hMargin);
        break;
    case 0x04:
        anchors->setHorizontalCenter(parent->horizontalCenter());
        break;
    default:
        break;
    }
    switch (flags & 0x1E0) {
    case 0x20:
        anchors->setTop(parent->top());
        anchors->setTopMargin(vMargin);
        break;
    case 0x40:
        anchors->setBottom(parent->bottom());
        anchors->setBottomMargin(vMargin);
        break;
    case 0x80:
        anchors->setVerticalCenter(parent->verticalCenter());
        break;
    default:
        break;
    }
}

void XLineInputText::setFontAlignment(int flags)
{
    m_line->setHAlign(hAlignOf(flags));
    m_line->setVAlign(vAlignOf(flags));
}
