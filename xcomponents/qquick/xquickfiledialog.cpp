#include "xcomponents/qquick/xquickfiledialog.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/xusbselectfiledata.h"

#include <qgui/events.h>

#include <QDir>
#include <QFileInfo>

XQuickFileDialog::XQuickFileDialog(QQuickItem* parent)
    : XPopup(parent)
    , m_files(new XUsbSelectFileData(this))
{
    // however it closes, the logic layer hears once
    connect(this, &XPopup::closed, this, [this] { finish(QString()); });
}

XQuickFileDialog::~XQuickFileDialog() = default;

QString XQuickFileDialog::filterText() const
{
    return m_files->nameFilters().join(QLatin1Char(' '));
}

void XQuickFileDialog::start(const QString& where, const QString& projectPath)
{
    m_answered = false;
    QString path = where.trimmed();
    QStringList filters;
    // a last part with wildcards is the list of patterns
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    const QString last = path.mid(slash + 1);
    if (last.contains(QLatin1Char('*')) || last.contains(QLatin1Char('?'))) {
        for (const QString& f : last.split(QRegExp(QStringLiteral("[;, ]")), Qt::SkipEmptyParts))
            filters.append(f);
        path = slash >= 0 ? path.left(slash) : QString();
    }
    m_files->setNameFilters(filters);
    Q_EMIT filterTextChanged();
    if (!path.isEmpty() && QDir::isRelativePath(path) && !projectPath.isEmpty())
        path = QDir(projectPath).absoluteFilePath(path);
    const QFileInfo info(path);
    const bool inside = !path.isEmpty() && (info.isDir() ? m_files->cd(path) : m_files->cd(info.absolutePath()));
    if (!inside)
        m_files->top(); // outside the roots, or nowhere: the list of roots
}

void XQuickFileDialog::activate(int row)
{
    if (m_answered)
        return;
    const QString path = m_files->pathAt(row);
    if (path.isEmpty())
        return;
    if (m_files->isDirAt(row)) {
        m_files->cd(path);
        return;
    }
    if (!m_files->isInside(path))
        return; // gone or moved out meanwhile
    finish(path);
    close();
}

void XQuickFileDialog::cancel()
{
    finish(QString());
    close();
}

void XQuickFileDialog::finish(const QString& path)
{
    if (m_answered)
        return;
    m_answered = true;
    if (path.isEmpty()) {
        LogicLayerCaller::call(m_id, EVT_FILE_DIALOG, nullptr);
        return;
    }
    QByteArray utf8 = path.toUtf8();
    LogicLayerCaller::call(m_id, EVT_FILE_DIALOG, utf8.data());
}
