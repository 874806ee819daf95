#pragma once

#include "FieldEditors/DvSlider.h"
#include "FieldEditors/DvSliderOwner.h"
#include "FieldEditors/TvkFieldEditors.h"

#include <Inventor/SbString.h>

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

/**
 * The base of the single-value editors: a label, an edition area that each type fills, a button
 * that sets the field to its default and one that switches its ignore flag.
 *
 * A type supplies buildEditor(), refresh(), applyChanges() and hasPendingEdit(); see
 * DvSFNumbersWidget for the family that most of them belong to.
 */
class DvSFieldWidget : public TvkFieldEditors, private DvSliderOwner
{
    Q_OBJECT

public:
    /** `sliderKind` is a DvSlider::Kind; any other value makes no slider. */
    explicit DvSFieldWidget(int sliderKind = DvSlider::NoKind,
                            const QString& objectName = QStringLiteral("DvSFieldWidget"));
    ~DvSFieldWidget() override;

    /** Builds the widget tree once; later calls, after releaseWidgets(), renew the sensor only. */
    void createWidgets() override;
    /**
     * Commits what is being typed into the former field, then takes the new one. The beginning of a
     * number, such as "-", is reverted, as when the line is left.
     */
    void setField(SoField* field) override;
    /** A type's override writes its own widgets first, then calls this for the ignore button. */
    void refresh() override;

protected:
    // What a type fills in.
    /** Puts the type's widgets into "editLayout" and connects them. Called once. */
    virtual void buildEditor(QHBoxLayout& editLayout);
    /** Another field, not null, has been set: ranges and lists of choices follow it. */
    virtual void fieldReplaced();
    /** The field has been taken away or has died: pop-ups and dialogs close. */
    virtual void fieldReleased();

public slots:
    /** A text while it is being typed, for the types that apply it at once. */
    virtual void applyChanges(const QString& text);

protected:
    /** Forgets that something was typed; the text stays until the next refresh. */
    virtual void clearPendingEdit();

public slots:
    /** Commits the widgets' value: writes the field, then hands the command to the host. */
    virtual void applyChanges();

public:
    /** Whether the user has typed something that is not committed. */
    virtual bool hasPendingEdit() const;

public slots:
    virtual void languageChange();
    virtual void setCommandValue();
    virtual void setDefaultFieldValue();
    void setFocusLeaveEvent();
    void ignoreButtonStateChanged();
    /** Shows the field's value again in place of what was being typed. */
    void revertPendingEdit();

protected:
    SoField* field() const { return m_field; }
    /** The field as its type; null where there is none. */
    template <class Field>
    Field* fieldAs() const
    {
        return static_cast<Field*>(m_field);
    }
    /** Another number for each field that is set: what a dialog began on may be gone at its end. */
    unsigned fieldNumber() const { return m_fieldNumber; }
    /** The slider of the numeric kinds; null for the others. */
    DvSlider* slider() const { return m_slider; }
    /** The type's label; made on first need, so that a type can give it another text. */
    QLabel* label();
    /**
     * Hands the set-value command to the host; the field must hold the new value already. The text
     * of before is a copy of the slider's where there is a slider; else the command has none.
     */
    void pushSetValue();
    /** The same with a text of before that the command takes over, and empties. */
    void pushSetValue(SbString& previousText);

private:
    void commitSlider() override;
    void revertSlider() override;
    void commitSliderCell(int row, int column) override;
    void buildLabel(QBoxLayout& layout);
    void buildEditionArea(QBoxLayout& layout);
    void buildButtons(QBoxLayout& layout);
    void releaseField();
    void finishTyping();
    /** Whether a line holds the beginning of a value, which its validator does not accept. */
    bool isHalfTyped() const;

    QLabel* m_label = nullptr;
    SoField* m_field = nullptr; ///< not owned
    unsigned m_fieldNumber = 0;
    QPointer<DvSlider> m_slider; ///< a child of the frame
    QPushButton* m_defaultButton = nullptr;
    QPushButton* m_ignoreButton = nullptr;
};
