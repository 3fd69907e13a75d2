#ifndef LISTSTATE_H
#define LISTSTATE_H

#include <QObject>

class VkbState;
class XTableViewControl;

/**
 * What the table family keeps: the tie between the tables and the on-screen
 * keyboard. A table asks for the keyboard for its page entry or for a cell in
 * edit mode; the confirmed text goes back to that table (not to the logic
 * layer), and a table deleted while the keyboard is open for it is simply no
 * longer told (the keyboard hides).
 */
class ListState : public QObject {
    Q_OBJECT

public:
    explicit ListState(VkbState* keyboardState, QObject* parent = nullptr);
    ~ListState() override;

    /** Connects a new table's keyboard requests. */
    void attach(XTableViewControl* table);

private:
    void openKeyboard(XTableViewControl* table, int layout, int validator, const QString& text);

    VkbState* m_keyboardState;
};

#endif // LISTSTATE_H
