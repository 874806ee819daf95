#pragma once

#include "FieldEditors/DvSFieldWidget.h"

#include <cstddef>
#include <cstring>
#include <utility>

/**
 * The family of the values that are made of numbers. `Box` says how the numbers look (showNumber(),
 * number()), and whether it is the value's whole text that is being edited in place of them
 * (isTextBeingEdited()); `View` says how a value is made of them:
 *
 *   using Field, Value;                   the field class, and the class of its values
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
        Box::refresh();
    }

    void applyChanges() override
    {
        auto* const field = this->template fieldAs<typename View::Field>();
        if (!field)
            return;
        if (this->isTextBeingEdited()) {
            Box::applyChanges();
            return;
        }
        const typename View::Numbers before = View::numbers(field->getValue());
        typename View::Numbers numbers = before;
        for (std::size_t i = 0; i < numbers.size(); ++i)
            numbers[i] = this->number(i, before[i]);
        // Before the command goes out: the end of editing that follows Return finds nothing to do.
        this->clearPendingEdit();
        // Made anew from its numbers, a plane or a rotation would not be the same to the last bit.
        if (isSame(numbers, before))
            field->setValue(typename View::Value(field->getValue()));
        else
            field->setValue(View::value(numbers));
        this->pushSetValue();
    }

private:
    /** To the last bit: -0 is not 0, and a component that is no number is the same as itself. */
    static bool isSame(const typename View::Numbers& one, const typename View::Numbers& other)
    {
        // The bytes are what is asked about.
        // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison,cert-exp42-c,cert-flp37-c)
        return std::memcmp(one.data(), other.data(), sizeof(one)) == 0;
    }
};
