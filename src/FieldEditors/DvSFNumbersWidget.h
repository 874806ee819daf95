#pragma once

#include "FieldEditors/DvSFieldWidget.h"

#include <cstddef>

/**
 * The family of the values that are made of numbers. `Box` says how the numbers look (showNumber(),
 * number()); `View` says how a value is made of them:
 *
 *   using Field;                          the field class
 *   using Numbers;                        std::array<double, n>
 *   static Numbers numbers(value);        a value as numbers
 *   static auto value(const Numbers&);    and back
 */
template <class Box, class View>
class DvSFNumbersWidget : public Box
{
public:
    using Box::applyChanges;

    template <class... Arguments>
    explicit DvSFNumbersWidget(Arguments&&... arguments)
        : Box(std::forward<Arguments>(arguments)...)
    {
        this->m_handledType = View::Field::getClassTypeId();
    }

    void refresh() override
    {
        if (const auto* field = this->template fieldAs<typename View::Field>()) {
            const typename View::Numbers numbers = View::numbers(field->getValue());
            for (std::size_t i = 0; i < numbers.size(); ++i)
                this->showNumber(i, numbers[i]);
        }
        DvSFieldWidget::refresh();
    }

    void applyChanges() override
    {
        auto* const field = this->template fieldAs<typename View::Field>();
        if (!field)
            return;
        typename View::Numbers numbers = View::numbers(field->getValue());
        for (std::size_t i = 0; i < numbers.size(); ++i)
            numbers[i] = this->number(i, numbers[i]);
        // Before the command goes out: the end of editing that follows Return finds nothing to do.
        this->clearPendingEdit();
        field->setValue(View::value(numbers));
        this->pushSetValue();
    }
};
