#include "scenegraph/SoFieldTextCheck.h"

#include <Inventor/SbName.h>
#include <Inventor/SbString.h>
#include <Inventor/SoInput.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/fields/SoMFEnum.h>
#include <Inventor/fields/SoSFEngine.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoSFPath.h>
#include <Inventor/nodekits/SoBaseKit.h>
#include <Inventor/nodekits/SoNodekitCatalog.h>

#include <cctype>
#include <memory>
#include <thread>
#include <vector>

namespace {

/** Keeps this thread's read errors from their handler; other threads' pass through. */
class QuietReadErrors
{
public:
    QuietReadErrors()
        : m_handler(SoReadError::getHandlerCallback()), m_data(SoReadError::getHandlerData())
    {
        SoReadError::setHandlerCallback(&QuietReadErrors::swallow, this);
    }
    ~QuietReadErrors() { SoReadError::setHandlerCallback(m_handler, m_data); }
    QuietReadErrors(const QuietReadErrors&) = delete;
    QuietReadErrors& operator=(const QuietReadErrors&) = delete;

private:
    static void swallow(const SoError* error, void* data)
    {
        const auto* const self = static_cast<QuietReadErrors*>(data);
        if (std::this_thread::get_id() != self->m_thread && self->m_handler)
            self->m_handler(error, self->m_data);
    }

    SoErrorCB* const m_handler;
    void* const m_data;
    const std::thread::id m_thread = std::this_thread::get_id();
};

bool onlySpaceIsLeft(SoInput& input)
{
    char c = 0;
    while (input.get(c)) {
        if (!std::isspace(static_cast<unsigned char>(c)))
            return false;
    }
    return true;
}

/** Coin writes the null object as a text that it does not read. */
bool isNullObject(SoType type, const SbString& text)
{
    return text == "NULL" && (type.isDerivedFrom(SoSFNode::getClassTypeId()) ||
                              type.isDerivedFrom(SoSFPath::getClassTypeId()) ||
                              type.isDerivedFrom(SoSFEngine::getClassTypeId()));
}

/** An enumeration without names of its own takes any; so the scratch field gets the field's. */
template <class Field>
void copyNames(const SoField& from, SoField& to)
{
    if (!from.isOfType(Field::getClassTypeId()))
        return;
    const auto& named = static_cast<const Field&>(from);
    std::vector<int> values;
    std::vector<SbName> names;
    for (int i = 0; i < named.getNumEnums(); ++i) {
        names.emplace_back();
        values.push_back(named.getEnum(i, names.back()));
    }
    if (!names.empty())
        static_cast<Field&>(to).setEnums(named.getNumEnums(), values.data(), names.data());
}

/**
 * Whether the node that the text has made may stand in the field. A node kit takes what stands in
 * its parts for nodes of their types, and crashes on any other.
 */
bool suits(const SoField& field, const SoField& read)
{
    const SoFieldContainer* const container = field.getContainer();
    if (!container || !container->isOfType(SoBaseKit::getClassTypeId()) ||
        !field.isOfType(SoSFNode::getClassTypeId()))
        return true;
    const auto* const kit = static_cast<const SoBaseKit*>(container);
    const SoNode* const node = static_cast<const SoSFNode&>(read).getValue();
    SbName name;
    const bool isPart =
        kit->getFieldName(&field, name) && kit->getNodekitCatalog()->getPartNumber(name) >= 0;
    return !isPart || !node || node->isOfType(kit->getNodekitCatalog()->getType(name));
}

} // namespace

SbBool SoFieldTextCheck::accepts(const SoField& field, const SbString& text)
{
    const SoType type = field.getTypeId();
    if (isNullObject(type, text))
        return TRUE;
    const std::unique_ptr<SoField> scratch(static_cast<SoField*>(type.createInstance()));
    if (!scratch)
        return FALSE;
    copyNames<SoSFEnum>(field, *scratch);
    copyNames<SoMFEnum>(field, *scratch);
    const QuietReadErrors quiet;
    SoInput input;
    input.setBuffer(text.getString(), static_cast<std::size_t>(text.getLength()));
    // The mark of an ignored field, with a value before it or alone, is a file's and no value's.
    return scratch->read(&input, SbName::empty()) && !scratch->isIgnored() &&
           onlySpaceIsLeft(input) && suits(field, *scratch);
}
