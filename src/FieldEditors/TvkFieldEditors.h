#pragma once

#include <TvkEditor.h>

#include <QPointer>

#include <memory>

class DvEditorFrame;
class QFrame;
class SoField;
class SoFieldSensor;
class SoSensor;

/**
 * The common base of all field editors: owns the editor's top frame and the sensor that refreshes
 * the editor whenever its field changes, by whatever means.
 *
 * Values flow one way each: refresh() alone writes widgets from the field; applyChanges() and the
 * commands alone write the field. The editor never outlives its field: when the field's container
 * dies, the editor lets go of it and disables its widgets.
 */
class TvkFieldEditors : public TvkEditor
{
    Q_OBJECT

public:
    TvkFieldEditors();
    ~TvkFieldEditors() override;

    /**
     * Takes the edited object if it is a field of the handled type: sets it, refreshes, shows. Else
     * does nothing, as before createWidgets() and after releaseWidgets().
     */
    void activate() override;
    /** Lets go of the field and hides. */
    void deactivate() override;
    void hide() override;
    void createWidgets() override;
    void show() override;
    /** Lets go of the field, which nobody watches from here on. */
    void releaseWidgets() override;

    /** Edits another field from now on, or none with null. */
    virtual void setField(SoField* field);
    /** Writes the field's value into the widgets; never commits anything. */
    virtual void refresh() = 0;

protected:
    QFrame* frame() const;
    /** True while the field's container dies: its fields must not be touched any more. */
    bool isFieldDying() const { return m_fieldDying; }
    /** Deletes the frame; nothing that its widgets say while dying reaches the editor. */
    void deleteFrame();

private:
    void fieldDied();

    std::unique_ptr<SoFieldSensor> m_sensor;
    QPointer<DvEditorFrame> m_frame; ///< owned; guarded, since a dock may have deleted it
    bool m_fieldDying = false;
};
