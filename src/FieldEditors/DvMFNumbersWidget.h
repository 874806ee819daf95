#pragma once

#include "FieldEditors/DvMFieldWidget.h"

#include <cstddef>

/**
 * The family of the multiple-value fields whose rows are made of numbers, a column each. `View` is
 * a row view (DvRowViews.h).
 *
 * A type that has another field class but the same columns overrides numbersAt() and write().
 */
template <class View>
class DvMFNumbersWidget : public DvMFieldWidget
{
public:
    DvMFNumbersWidget(DvTableForm form, const QString& objectName)
        : DvMFieldWidget(std::move(form), objectName)
    {
        m_handledType = View::Field::getClassTypeId();
    }

    QString cellText(int row, int column) const override
    {
        if (column < 0 || column >= View::shownColumns || !isRow(row))
            return {};
        return View::text(numbersAt(row)[static_cast<std::size_t>(column)]);
    }

    QByteArray rowValue(int row) const override
    {
        return isRow(row) ? bytesOf(numbersAt(row)) : QByteArray();
    }

    void applyCell(int row, int column, const QString& text) override
    {
        if (!isRow(row))
            return;
        Numbers numbers = numbersAt(row);
        if (column >= 0 && static_cast<std::size_t>(column) < numbers.size())
            numbers[static_cast<std::size_t>(column)] = View::number(text);
        write(row, numbers);
    }

    /** Kept on purpose: exchanges the values directly, without an undo entry. */
    void swapRows(int row1, int row2) override
    {
        if (!isRow(row1) || !isRow(row2))
            return;
        auto* const field = fieldAs<typename View::Field>();
        const typename View::Value first = (*field)[row1];
        field->set1Value(row1, typename View::Value((*field)[row2]));
        field->set1Value(row2, first);
    }

protected:
    using Numbers = typename View::Numbers;

    virtual Numbers numbersAt(int row) const
    {
        return View::numbers((*fieldAs<typename View::Field>())[row]);
    }

    /** Writes a row, and hands the command to the host. */
    virtual void write(int row, const Numbers& numbers)
    {
        fieldAs<typename View::Field>()->set1Value(row, View::value(numbers));
        pushSetValue(row);
    }
};
