#pragma once

#include <QSpinBox>

/**
 * The spin box of a field editor. A typed number is one edit, not one for each of its digits; while
 * the user types, an outside change leaves the typed text alone; Escape asks the editor to show the
 * field's value again.
 */
class DvSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    DvSpinBox(int minimum, int maximum, QWidget* parent = nullptr);

    /** Shows a value as the field's; nobody takes that for a user's action. */
    void showValue(int value);
    /** Whether a text has been typed that is not taken as the value yet. */
    bool hasPendingEdit() const { return cleanText() != textFromValue(value()); }
    /** Takes a typed text as the value, without telling anybody. */
    void takePendingEdit();
    /** Shows the value in place of what was typed. */
    void clearPendingEdit();

signals:
    void revertRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
