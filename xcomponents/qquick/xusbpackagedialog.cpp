#include "xcomponents/qquick/xusbpackagedialog.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/xusbselectfiledata.h"

#include <qgui/events.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStorageInfo>

namespace {

constexpr int kMaxCounted = 1000; // packages counted on a medium, at most
constexpr int kCountDepth = 2; // folders below the storage root searched for packages

int countPackages(const QString& folder, int depth)
{
    int n = 0;
    QDir dir(folder);
    n += dir.entryList(XUsbPackageDialog::packageFilters(), QDir::Files | QDir::NoSymLinks).size();
    if (depth <= 0)
        return n;
    const QStringList subs = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString& sub : subs) {
        if (n >= kMaxCounted)
            break;
        n += countPackages(dir.filePath(sub), depth - 1);
    }
    return qMin(n, kMaxCounted);
}

} // namespace

QStringList XUsbPackageDialog::packageFilters()
{
    return { QStringLiteral("*.pkg"), QStringLiteral("*.zip"), QStringLiteral("*.7z") };
}

XUsbPackageDialog::XUsbPackageDialog(QQuickItem* parent)
    : XPopup(parent)
    , m_files(new XUsbSelectFileData(this))
{
    m_files->setNameFilters(packageFilters());
}

XUsbPackageDialog::~XUsbPackageDialog() = default;

void XUsbPackageDialog::setUp(Kind kind, unsigned id, int storeNo, const QString& label, const QString& folder)
{
    m_kind = kind;
    m_id = id;
    m_storeNo = storeNo;
    m_label = label;
    m_folder = folder;
    refreshMedium();
}

void XUsbPackageDialog::setPackage(const QString& path)
{
    m_package = path;
    Q_EMIT packageChanged();
}

void XUsbPackageDialog::setChooseProject(bool on)
{
    if (on != m_project) {
        m_project = on;
        Q_EMIT choiceChanged();
    }
}

void XUsbPackageDialog::setChooseData(bool on)
{
    if (on != m_data) {
        m_data = on;
        Q_EMIT choiceChanged();
    }
}

QString XUsbPackageDialog::packageName() const
{
    return QFileInfo(m_package).fileName();
}

QString XUsbPackageDialog::packageSize() const
{
    const QFileInfo info(m_package);
    return info.isFile() ? XUsbSelectFileData::readableSize(info.size()) : QString();
}

QString XUsbPackageDialog::packageDate() const
{
    const QFileInfo info(m_package);
    return info.isFile() ? info.lastModified().toString(QStringLiteral("yyyy-MM-dd hh:mm")) : QString();
}

quint32 XUsbPackageDialog::selectionWord() const
{
    return (quint32(m_storeNo) & 0xFFu) | (m_project ? 0x100u : 0u) | (m_data ? 0x200u : 0u);
}

void XUsbPackageDialog::download()
{
    if (m_answered || m_kind != Plugged)
        return;
    m_answered = true;
    View_EvtUsbPackage payload { selectionWord(), 0 };
    LogicLayerCaller::call(m_id, EVT_USB_PKG_DOWNLOAD, &payload);
    close();
}

void XUsbPackageDialog::browse()
{
    if (m_answered || m_kind != Plugged)
        return;
    m_answered = true;
    U32 word = selectionWord();
    LogicLayerCaller::call(m_id, EVT_USB_PKG_BROWSE, &word);
    close();
}

void XUsbPackageDialog::confirm()
{
    if (m_answered || m_kind != Confirm)
        return;
    if (!QFileInfo(m_package).isFile()) { // the medium went meanwhile
        refreshMedium();
        return;
    }
    m_answered = true;
    QByteArray utf8 = m_package.toUtf8();
    LogicLayerCaller::call(m_id, EVT_USB_PKG_CONFIRM, utf8.data());
    Q_EMIT confirmed();
    close();
}

void XUsbPackageDialog::activate(int row)
{
    if (m_kind != Explorer)
        return;
    const QString path = m_files->pathAt(row);
    if (path.isEmpty())
        return;
    if (m_files->isDirAt(row))
        m_files->cd(path);
    else if (m_files->isInside(path))
        Q_EMIT packageChosen(path);
}

void XUsbPackageDialog::refreshMedium()
{
    const QString canonical = QFileInfo(m_folder).canonicalFilePath();
    if (!canonical.isEmpty())
        m_folder = canonical; // as the listing names it
    const QDir dir(m_folder);
    m_present = !m_folder.isEmpty() && dir.exists() && !dir.isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot);
    m_packages = m_present ? countPackages(m_folder, kCountDepth) : 0;
    const QStorageInfo storage(m_folder);
    m_free = m_present && storage.isValid() ? XUsbSelectFileData::readableSize(storage.bytesAvailable()) : QString();
    if (m_kind == Explorer) {
        // the explorer never leaves this storage; the folder shown stays while it exists
        const QString current = m_files->folder();
        m_files->setRoots({ { m_label, m_folder } });
        if (current.isEmpty() || !m_files->cd(current))
            m_files->cd(m_folder);
    }
    Q_EMIT mediumChanged();
    Q_EMIT packageChanged();
}
