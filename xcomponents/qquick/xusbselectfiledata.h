#ifndef XUSBSELECTFILEDATA_H
#define XUSBSELECTFILEDATA_H

#include <QAbstractListModel>
#include <QDateTime>
#include <QStringList>
#include <QVector>

/**
 * The rows of the file dialog: the files and folders of one folder inside the
 * panel's storage roots (folders first, then files, each by name), or the
 * roots themselves at the top. Nothing outside the roots is ever listed or
 * entered: a path with "..", or a link that leads out of the roots, is
 * refused; entries whose names are not valid UTF-8 are not listed.
 *
 * Files are listed when their name matches one of the filters ("*.pdf");
 * without filters every file is.
 */
class XUsbSelectFileData : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QString folder READ folder NOTIFY folderChanged)
    Q_PROPERTY(QString shownPath READ shownPath NOTIFY folderChanged)
    Q_PROPERTY(bool atTop READ atTop NOTIFY folderChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY folderChanged)

public:
    enum Role {
        NameRole = Qt::UserRole + 1, /**< the entry's name (a root: its label) */
        PathRole, /**< absolute path */
        IsDirRole, /**< a folder (or a root) */
        SizeRole, /**< size of a file, readable ("12.3 KB"); "" for folders */
        DateRole /**< time last modified, "yyyy-MM-dd hh:mm" */
    };

    /** \a bytes as an operator reads it: "512 B", "12.3 KB", "1.5 GB". */
    static QString readableSize(qint64 bytes);
    /** Most entries listed in one folder. */
    static constexpr int kMaxEntries = 10000;

    explicit XUsbSelectFileData(QObject* parent = nullptr);
    ~XUsbSelectFileData() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /** The roots: a label ("usb1") and an absolute folder each; folders that do not exist are skipped. */
    void setRoots(const QVector<QPair<QString, QString>>& roots);
    /** File name patterns ("*.pdf"); empty: every file. */
    void setNameFilters(const QStringList& filters);
    QStringList nameFilters() const { return m_filters; }

    /** The folder listed (absolute), "" at the top. */
    QString folder() const { return m_folder; }
    /** The folder as the operator reads it: the root's label and the path below it ("usb1/reports"). */
    QString shownPath() const;
    bool atTop() const { return m_folder.isEmpty(); }
    /** True when \a path (existing, links followed) lies inside a root. */
    bool isInside(const QString& path) const;

    /** Lists \a path (a folder inside the roots); false, and nothing changes, for any other path. */
    Q_INVOKABLE bool cd(const QString& path);
    /** Goes to the parent folder, or to the top from a root. */
    Q_INVOKABLE void up();
    /** Lists the roots. */
    Q_INVOKABLE void top();
    /** Lists the folder again (after a medium appeared or files changed). */
    Q_INVOKABLE void refresh();
    /** Absolute path of row \a row; "" for none. */
    Q_INVOKABLE QString pathAt(int row) const;
    Q_INVOKABLE bool isDirAt(int row) const;

Q_SIGNALS:
    void folderChanged();

private:
    struct Entry {
        QString name;
        QString path;
        bool dir = false;
        qint64 size = 0;
        QDateTime modified;
    };
    /** The root (canonical folder) holding \a canonical, or -1. */
    int rootOf(const QString& canonical) const;
    void list();

    QVector<QPair<QString, QString>> m_roots; // label, canonical folder
    QStringList m_filters;
    QString m_folder;
    QVector<Entry> m_entries;
};

#endif // XUSBSELECTFILEDATA_H
