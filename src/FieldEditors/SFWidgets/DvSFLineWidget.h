#pragma once

#include "FieldEditors/DvSFieldWidget.h"

class DvLineEdit;

/**
 * The fall-back editor of any single-value field: one line with the field's text form.
 *
 * A text that the field's type accepts whole is applied while it is being typed; a text that is not
 * complete yet waits, marked, for the rest. Return and leaving the line commit, once. Fields that
 * hold nodes, paths or engines, whose text would make a new object at every key, change on Return
 * and leaving alone.
 */
class DvSFLineWidget : public DvSFieldWidget
{
    Q_OBJECT

public:
    explicit DvSFLineWidget(const QString& objectName = QStringLiteral("DvSFLineWidget"));

    /** A line that is being edited is left as it is. */
    void refresh() override;
    void applyChanges() override;
    bool hasPendingEdit() const override;

public slots:
    void applyChanges(const QString& text) override;
    void setCursorPosition(int from, int to);
    /** Takes back what has been applied while typing, then shows the field's value. */
    void cancelTyping();

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void fieldReplaced() override;
    void clearPendingEdit() override;
    /** What the line's signals do. */
    virtual void connectLine();
    DvLineEdit& line() const { return *m_line; }

private:
    bool holdsObject() const;
    void write(const QString& text);
    void markAccepted(bool accepted);

    DvLineEdit* m_line = nullptr;
    int m_cursorPosition = 0;
    bool m_appliedWhileTyping = false;
    SbString m_textBeforeTyping;
};
