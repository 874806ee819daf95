#pragma once

#include "TavrikSceneGraphExport.h"

#include <Inventor/SoType.h>

class SoField;
class SoFieldContainer;

/**
 * A handle to what an editor can edit: a field or a field container, which in Coin share no base
 * class. It is a small value: copy it, pass its address; it owns nothing, and a handle of null is
 * "no object".
 *
 * The handle does not notice the death of what it refers to: whoever keeps one watches it.
 */
class TAVRIKSCENEGRAPH_EXPORT SoTypedObject
{
public:
    SoTypedObject() = default;
    explicit SoTypedObject(SoField* field) : m_field(field) {}
    explicit SoTypedObject(SoFieldContainer* container) : m_container(container) {}

    /** The type of what it refers to; SoType::badType() for no object. */
    SoType getTypeId() const;
    /** FALSE for no object. */
    SbBool isOfType(SoType type) const;

    /** Null unless it refers to a field. */
    SoField* getField() const { return m_field; }
    /** Null unless it refers to a container. */
    SoFieldContainer* getFieldContainer() const { return m_container; }
    bool isNull() const { return !m_field && !m_container; }

private:
    SoField* m_field = nullptr;
    SoFieldContainer* m_container = nullptr;
};
