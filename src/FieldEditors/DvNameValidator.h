#pragma once

#include <QValidator>

/** Takes any text that Coin can hold as a name; one that is too long cannot even be typed. */
class DvNameValidator final : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;

    State validate(QString& text, int& position) const override;
};
