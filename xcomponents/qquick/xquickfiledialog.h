#ifndef XQUICKFILEDIALOG_H
#define XQUICKFILEDIALOG_H

#include "platform/xpopup.h"

class XUsbSelectFileData;

/**
 * The file dialog: a touch-friendly browser of the panel's storage folders
 * (path bar, up, large rows with folders first, sizes and dates) made from
 * "qrc:/QmlFileDialog.qml". Touching a folder opens it; touching a file
 * chooses it: event 770 with the dialog's id and the file's path in UTF-8,
 * and the dialog closes. Cancelling, or the dialog closing any other way,
 * sends 770 with no data. Exactly one 770 is sent per opening.
 */
class XQuickFileDialog : public XPopup {
    Q_OBJECT
    Q_PROPERTY(XUsbSelectFileData* files READ files CONSTANT)
    Q_PROPERTY(QString filterText READ filterText NOTIFY filterTextChanged)

public:
    explicit XQuickFileDialog(QQuickItem* parent = nullptr);
    ~XQuickFileDialog() override;

    XUsbSelectFileData* files() const { return m_files; }
    /** The dialog's id (the one its 770 carries). */
    void setDialogId(unsigned id) { m_id = id; }
    unsigned dialogId() const { return m_id; }
    /** The filters shown under the path ("*.pdf *.csv"); "" for every file. */
    QString filterText() const;

    /**
     * Starts at \a where: a folder, a file (its folder is opened), or either followed by
     * name patterns ("disk/usb1/*.pdf;*.csv"); relative paths are taken from the project.
     * A place outside the roots starts at the list of roots.
     */
    void start(const QString& where, const QString& projectPath);

    /** Row \a row touched: a folder opens, a file is chosen. */
    Q_INVOKABLE void activate(int row);
    /** Closes without a choice (770 with no data). */
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void filterTextChanged();

private:
    void finish(const QString& path);

    XUsbSelectFileData* m_files;
    unsigned m_id = 0;
    bool m_answered = false;
};

#endif // XQUICKFILEDIALOG_H
