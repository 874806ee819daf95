#pragma once

#include <QValidator>

/**
 * A 32-bit unsigned integer, base 10. An empty text is acceptable; a number outside of the range is
 * intermediate, and a text that is no 32-bit unsigned number is invalid.
 */
class QUIntValidator : public QValidator
{
    Q_OBJECT

public:
    QUIntValidator(unsigned bottom, unsigned top, QObject* parent);

    void setRange(unsigned bottom, unsigned top);
    unsigned bottom() const { return m_bottom; }
    unsigned top() const { return m_top; }

    State validate(QString& text, int& position) const override;

private:
    unsigned m_bottom;
    unsigned m_top;
};
