#pragma once

#include "FieldEditors/DvSFTextBox.h"

/**
 * The family of the single-value texts. `Field` is the field class; its setter takes what a value
 * is made of, an SbString or something that is made of its characters.
 */
template <class Field>
class DvSFTextWidget : public DvSFTextBox
{
public:
    using DvSFTextBox::applyChanges;

    explicit DvSFTextWidget(const QString& objectName) : DvSFTextBox(objectName)
    {
        m_handledType = Field::getClassTypeId();
    }

    void refresh() override
    {
        if (const auto* field = fieldAs<Field>())
            showText(SbString(field->getValue().getString()));
        DvSFTextBox::refresh();
    }

    void applyChanges() override
    {
        auto* const field = fieldAs<Field>();
        // A line reports the end of its editing also when it is merely left.
        if (!field || !hasNewText())
            return;
        clearPendingEdit();
        field->setValue(text().getString());
        // From here on the line shows the field's value: leaving it finds nothing to do.
        refresh();
        pushSetValue();
    }
};
