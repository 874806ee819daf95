#pragma once

#include "TvkExtension.h"

#include "scenegraph/SoTypedObject.h"

#include <Inventor/SoType.h>

#include <QPointer>
#include <QWidget>

/**
 * An extension that edits one object, a field or a node, of one scene-graph type or of the types
 * derived from it.
 */
class TAVRIKEXTENDERAPI_EXPORT TvkEditor : public TvkExtension
{
    Q_OBJECT

public:
    ~TvkEditor() override;

    /** The type that this editor is for; it also serves every derived type. */
    virtual SoType getHandledType();
    /**
     * Gives the editor the object to edit; null takes it away. The handle is copied, so the caller
     * may pass the address of a local; what the handle refers to is owned by neither.
     */
    virtual void setEditedObject(SoTypedObject* object);
    /** The editor's own copy of the handle; null when there is nothing to edit. */
    virtual SoTypedObject* getEditedObject() const;
    /** The widget to put into a dock. It stays the editor's own. */
    virtual QWidget* getWidget() const;

protected:
    SoType m_handledType = SoType::badType(); ///< set by the subclass's constructor
    /// Mutable because getEditedObject() gives out its address.
    mutable SoTypedObject m_editedObject;
    QPointer<QWidget> m_widget; ///< set by the subclass's constructor
};
