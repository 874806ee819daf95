#pragma once

#include <QIntValidator>

/**
 * An integer, base 10, in every language of the user's without group separators. A number beyond
 * the limits is accepted, for a control that clamps what is entered: with one that is not, a line
 * would report neither Return nor the end of editing.
 */
class DvIntValidator final : public QIntValidator
{
    Q_OBJECT

public:
    explicit DvIntValidator(QObject* parent);

    State validate(QString& text, int& position) const override;
};
