#include "xcomponents/qquick/xusbselectfiledata.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

XUsbSelectFileData::XUsbSelectFileData(QObject* parent)
    : QAbstractListModel(parent)
{
}

XUsbSelectFileData::~XUsbSelectFileData() = default;

int XUsbSelectFileData::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QString XUsbSelectFileData::readableSize(qint64 bytes)
{
    static const char* const units[] = { "B", "KB", "MB", "GB", "TB" };
    double v = double(bytes);
    int u = 0;
    while (v >= 1024 && u < 4) {
        v /= 1024;
        ++u;
    }
    return u == 0 ? QStringLiteral("%1 B").arg(bytes) : QStringLiteral("%1 %2").arg(v, 0, 'f', 1).arg(units[u]);
}

QVariant XUsbSelectFileData::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return QVariant();
    const Entry& e = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return e.name;
    case PathRole:
        return e.path;
    case IsDirRole:
        return e.dir;
    case SizeRole:
        return e.dir ? QString() : readableSize(e.size);
    case DateRole:
        return e.modified.isValid() ? e.modified.toString(QStringLiteral("yyyy-MM-dd hh:mm")) : QString();
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> XUsbSelectFileData::roleNames() const
{
    return { { NameRole, "name" }, { PathRole, "path" }, { IsDirRole, "isDir" }, { SizeRole, "size" },
        { DateRole, "date" } };
}

void XUsbSelectFileData::setRoots(const QVector<QPair<QString, QString>>& roots)
{
    m_roots.clear();
    for (const auto& r : roots) {
        const QString canonical = QFileInfo(r.second).canonicalFilePath();
        if (!canonical.isEmpty() && QFileInfo(canonical).isDir())
            m_roots.append({ r.first, canonical });
    }
    m_folder.clear();
    list();
}

void XUsbSelectFileData::setNameFilters(const QStringList& filters)
{
    m_filters = filters;
    list();
}

int XUsbSelectFileData::rootOf(const QString& canonical) const
{
    for (int i = 0; i < m_roots.size(); ++i) {
        const QString& root = m_roots.at(i).second;
        if (canonical == root || canonical.startsWith(root + QLatin1Char('/')))
            return i;
    }
    return -1;
}

bool XUsbSelectFileData::isInside(const QString& path) const
{
    const QString canonical = QFileInfo(path).canonicalFilePath(); // links followed, ".." resolved
    return !canonical.isEmpty() && rootOf(canonical) >= 0;
}

QString XUsbSelectFileData::shownPath() const
{
    const int r = rootOf(m_folder);
    if (r < 0)
        return QString();
    return m_roots.at(r).first + m_folder.mid(m_roots.at(r).second.size());
}

bool XUsbSelectFileData::cd(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (canonical.isEmpty() || !QFileInfo(canonical).isDir() || rootOf(canonical) < 0)
        return false;
    m_folder = canonical;
    list();
    return true;
}

void XUsbSelectFileData::up()
{
    if (m_folder.isEmpty())
        return;
    const int r = rootOf(m_folder);
    if (r < 0 || m_folder == m_roots.at(r).second)
        m_folder.clear(); // from a root to the list of roots
    else
        m_folder = QFileInfo(m_folder).absolutePath();
    list();
}

void XUsbSelectFileData::top()
{
    m_folder.clear();
    list();
}

void XUsbSelectFileData::refresh()
{
    if (!m_folder.isEmpty() && !QFileInfo(m_folder).isDir())
        m_folder.clear(); // the medium went away
    list();
}

QString XUsbSelectFileData::pathAt(int row) const
{
    return row >= 0 && row < m_entries.size() ? m_entries.at(row).path : QString();
}

bool XUsbSelectFileData::isDirAt(int row) const
{
    return row >= 0 && row < m_entries.size() && m_entries.at(row).dir;
}

void XUsbSelectFileData::list()
{
    beginResetModel();
    m_entries.clear();
    if (m_folder.isEmpty()) {
        for (const auto& r : m_roots) {
            const QFileInfo info(r.second);
            m_entries.append({ r.first, r.second, true, 0, info.lastModified() });
        }
    } else {
        QDir dir(m_folder);
        dir.setFilter(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
        const QFileInfoList infos = dir.entryInfoList();
        QVector<Entry> folders, files;
        for (const QFileInfo& info : infos) {
            if (folders.size() + files.size() >= kMaxEntries)
                break;
            if (info.fileName().contains(QChar::ReplacementCharacter) || info.fileName().startsWith(QLatin1Char('.')))
                continue; // names that are no UTF-8, and hidden files
            const QString canonical = info.canonicalFilePath();
            if (canonical.isEmpty() || rootOf(canonical) < 0)
                continue; // a broken link, or one that leads out of the roots
            const bool isDir = QFileInfo(canonical).isDir();
            if (!isDir && !m_filters.isEmpty() && !QDir::match(m_filters, info.fileName()))
                continue;
            Entry e { info.fileName(), info.absoluteFilePath(), isDir, isDir ? 0 : info.size(), info.lastModified() };
            (isDir ? folders : files).append(e);
        }
        auto byName = [](const Entry& a, const Entry& b) { return a.name.compare(b.name, Qt::CaseInsensitive) < 0; };
        std::sort(folders.begin(), folders.end(), byName);
        std::sort(files.begin(), files.end(), byName);
        m_entries = folders + files;
    }
    endResetModel();
    Q_EMIT folderChanged();
}
