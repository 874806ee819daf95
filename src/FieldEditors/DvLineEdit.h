#pragma once

#include <QLineEdit>

/**
 * The line of a field editor. It takes texts of any length; Escape, and leaving it with a text that
 * its validator does not accept, ask the editor to show the field's value again.
 */
class DvLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    DvLineEdit(const char* objectName, QWidget* parent);

    /**
     * Shows a text from its start, as the field's: not modified. While the user types into the
     * line, the typed text stays, and the text is only kept as the one last shown.
     */
    void showText(const QString& text);
    /** The text last shown by showText(). */
    const QString& shownText() const { return m_shownText; }
    /** Whether the line still holds what was last shown, untouched by the user. */
    bool showsFieldValue() const { return !isModified() && text() == m_shownText; }

signals:
    void revertRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void replaceText(const QString& text);

    QString m_shownText;
};
