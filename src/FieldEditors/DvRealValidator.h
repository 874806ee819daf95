#pragma once

#include <QDoubleValidator>

/**
 * A real number as Coin writes it, in every language of the user's: decimal point, no group
 * separators. A comma typed as the decimal separator becomes a point; a text that could as well
 * mean thousands, such as a pasted "1,000", is refused. The zeros that a small number begins with
 * do not count as decimals, so that every text that is shown can be typed.
 */
class DvRealValidator final : public QDoubleValidator
{
    Q_OBJECT

public:
    /** The limits and decimals of a single-precision component. */
    explicit DvRealValidator(QObject* parent);
    DvRealValidator(double bottom, double top, int decimals, QObject* parent);

    /**
     * Accepts numbers beyond the limits too, for a control that clamps what is entered. Off at
     * first: with a number beyond the limits a line reports neither Return nor the end of editing.
     */
    void setClamped(bool clamped) { m_clamped = clamped; }

    State validate(QString& text, int& position) const override;

private:
    State validateBeyond(const QString& text, State state) const;

    bool m_clamped = false;
};
