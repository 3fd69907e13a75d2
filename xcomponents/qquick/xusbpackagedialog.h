#ifndef XUSBPACKAGEDIALOG_H
#define XUSBPACKAGEDIALOG_H

#include "platform/xpopup.h"

class XUsbSelectFileData;

/**
 * The dialogs about project packages on a removable storage, one class for the
 * three kinds (each with its QML file in the "usb" group):
 *
 *  - Plugged ("qrc:/usb/QmlExtDevPlugin.qml"): a medium is in storage N; the
 *    operator picks what to download (the project, the data) and presses
 *    "Download" (event 2305: the selection word, then 0) or "Browse" (event
 *    2307: the selection word).
 *  - Confirm ("qrc:/usb/QmlPkgDownloadCfm.qml"): one package with its size and
 *    date; "Download" sends 2306 with its path in UTF-8.
 *  - Explorer ("qrc:/usb/QmlPkgFileExplorer.qml"): the packages and folders of
 *    storage N only; touching a package asks for its confirmation
 *    (packageChosen), touching a folder opens it.
 *
 * The selection word: bits 0-7 the storage number, bit 8 the project chosen,
 * bit 9 the data (recipes, logs) chosen. "Cancel" closes without an event.
 * Every event carries the dialog's id (the window it was opened for).
 */
class XUsbPackageDialog : public XPopup {
    Q_OBJECT
    Q_PROPERTY(int kind READ kind CONSTANT)
    Q_PROPERTY(int storeNo READ storeNo NOTIFY mediumChanged)
    Q_PROPERTY(QString storageLabel READ storageLabel NOTIFY mediumChanged)
    Q_PROPERTY(QString storageFolder READ storageFolder NOTIFY mediumChanged)
    Q_PROPERTY(bool mediumPresent READ mediumPresent NOTIFY mediumChanged)
    Q_PROPERTY(int packageCount READ packageCount NOTIFY mediumChanged)
    Q_PROPERTY(QString freeSpace READ freeSpace NOTIFY mediumChanged)
    Q_PROPERTY(bool chooseProject READ chooseProject WRITE setChooseProject NOTIFY choiceChanged)
    Q_PROPERTY(bool chooseData READ chooseData WRITE setChooseData NOTIFY choiceChanged)
    Q_PROPERTY(QString packagePath READ packagePath NOTIFY packageChanged)
    Q_PROPERTY(QString packageName READ packageName NOTIFY packageChanged)
    Q_PROPERTY(QString packageSize READ packageSize NOTIFY packageChanged)
    Q_PROPERTY(QString packageDate READ packageDate NOTIFY packageChanged)
    Q_PROPERTY(XUsbSelectFileData* files READ files CONSTANT)

public:
    enum Kind { Plugged = 0, Confirm = 1, Explorer = 2 };
    Q_ENUM(Kind)

    /** The names of package files. */
    static QStringList packageFilters();

    explicit XUsbPackageDialog(QQuickItem* parent = nullptr);
    ~XUsbPackageDialog() override;

    int kind() const { return m_kind; }
    /** The dialog's id (the one its events carry). */
    unsigned dialogId() const { return m_id; }
    /** Sets what the dialog is about: its kind, id, storage number, the storage's label and folder. */
    void setUp(Kind kind, unsigned id, int storeNo, const QString& label, const QString& folder);
    /** Confirm: the package asked about (an existing file inside the storage folder). */
    void setPackage(const QString& path);

    int storeNo() const { return m_storeNo; }
    QString storageLabel() const { return m_label; }
    QString storageFolder() const { return m_folder; }
    bool mediumPresent() const { return m_present; }
    int packageCount() const { return m_packages; }
    QString freeSpace() const { return m_free; }
    bool chooseProject() const { return m_project; }
    void setChooseProject(bool on);
    bool chooseData() const { return m_data; }
    void setChooseData(bool on);
    QString packagePath() const { return m_package; }
    QString packageName() const;
    QString packageSize() const;
    QString packageDate() const;
    XUsbSelectFileData* files() const { return m_files; }
    /** Bits 0-7 the storage number, bit 8 the project, bit 9 the data. */
    quint32 selectionWord() const;

    /** Plugged: 2305 (selection word, 0), then the dialog closes. */
    Q_INVOKABLE void download();
    /** Plugged: 2307 (selection word), then the dialog closes. */
    Q_INVOKABLE void browse();
    /** Confirm: 2306 with the package's path, then the dialog closes. */
    Q_INVOKABLE void confirm();
    /** Explorer: row \a row touched: a folder opens, a package is chosen (packageChosen). */
    Q_INVOKABLE void activate(int row);
    /** Closes without an event. */
    Q_INVOKABLE void cancel() { close(); }
    /** Reads the medium again: present or not, its packages, its free space, the listing. */
    Q_INVOKABLE void refreshMedium();

Q_SIGNALS:
    void mediumChanged();
    void choiceChanged();
    void packageChanged();
    /** Explorer: the operator chose the package at \a path. */
    void packageChosen(const QString& path);
    /** Confirm: the operator confirmed (2306 was sent). */
    void confirmed();

private:
    XUsbSelectFileData* m_files;
    int m_kind = Plugged;
    unsigned m_id = 0;
    int m_storeNo = 0;
    QString m_label;
    QString m_folder;
    bool m_present = false;
    int m_packages = 0;
    QString m_free;
    bool m_project = true;
    bool m_data = true;
    QString m_package;
    bool m_answered = false;
};

#endif // XUSBPACKAGEDIALOG_H
