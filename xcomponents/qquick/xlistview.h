#ifndef XLISTVIEW_H
#define XLISTVIEW_H

#include "xcomponents/qquick/xquicklistview.h"

#include <QPointer>

class XListModel;

/**
 * The rows of a menu's flat list: the list view over an XListModel. The rows
 * are made only while listModel is set (a closed pop-up sets none).
 */
class XListView : public XQuickListView {
    Q_OBJECT
    Q_PROPERTY(XListModel* listModel READ listModel WRITE setListModel NOTIFY listModelChanged)

public:
    explicit XListView(QQuickItem* parent = nullptr);
    ~XListView() override;

    XListModel* listModel() const;
    /** Shows the rows of \a model; null shows none. */
    void setListModel(XListModel* model);

Q_SIGNALS:
    void listModelChanged();

private:
    QPointer<XListModel> m_listModel;
};

#endif // XLISTVIEW_H
