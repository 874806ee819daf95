#include "FieldEditors/DvDefaultValue.h"

#include "FieldEditors/DvCommands.h"
#include "FieldEditors/TvkFieldSetDefaultCommand.h"
#include "scenegraph/SoFieldText.h"

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoFieldData.h>

namespace {

/** A fresh instance of a container type, kept while this lives. */
class FreshInstance
{
public:
    explicit FreshInstance(SoType type)
    {
        if (!type.canCreateInstance())
            return;
        m_container = static_cast<SoFieldContainer*>(type.createInstance());
        if (m_container)
            m_container->ref();
    }
    ~FreshInstance()
    {
        if (m_container)
            m_container->unref();
    }
    FreshInstance(const FreshInstance&) = delete;
    FreshInstance& operator=(const FreshInstance&) = delete;

    SoField* counterpart(const SoField& field) const;

private:
    SoFieldContainer* m_container = nullptr;
};

SoField* FreshInstance::counterpart(const SoField& field) const
{
    if (!m_container)
        return nullptr;
    const SoFieldContainer* const edited = field.getContainer();
    // Nodes of unknown types and scripts have field data of their own, with which the fresh
    // instance's fields must not be looked up.
    const SoFieldData* const editedData = edited->getFieldData();
    const SoFieldData* const freshData = m_container->getFieldData();
    const int index = editedData ? editedData->getIndex(edited, &field) : -1;
    if (index < 0 || !freshData || index >= freshData->getNumFields() ||
        freshData->getFieldName(index) != editedData->getFieldName(index))
        return nullptr;
    SoField* const found = freshData->getField(m_container, index);
    return found->getTypeId() == field.getTypeId() ? found : nullptr;
}

} // namespace

void DvDefaultValue::restore(SoField& field)
{
    if (!field.getContainer())
        return;
    const FreshInstance fresh(field.getContainer()->getTypeId());
    SoField* const defaultField = fresh.counterpart(field);
    if (!defaultField)
        return;
    SbString text;
    SoFieldText::get(defaultField, text);
    SoFieldText::set(&field, text);
    DvCommands::push<TvkFieldSetDefaultCommand>(&field, defaultField);
}
