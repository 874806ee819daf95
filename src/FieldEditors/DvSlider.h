#pragma once

#include <Inventor/SbString.h>

#include <QFrame>

class DvLineEdit;
class DvSliderOwner;
class QCheckBox;
class QSlider;

/**
 * A number as a line for exact entry, a slider for dragging, and a check box that says whether
 * dragging commits at every step or once, on release. Used by the numeric editors and, in a table
 * cell, by the multiple-value ones.
 *
 * The three types of value derive from it: DvRealSlider, DvIntSlider, DvUIntSlider. A value is
 * never changed by being shown: the value stays exact where its text, or the slider's position,
 * rounds it.
 */
class DvSlider : public QFrame
{
    Q_OBJECT

public:
    /** The types of field that have a slider. */
    enum Kind { NoKind, FloatKind, DoubleKind, Int32Kind, UInt32Kind, ShortKind, UShortKind };

    /** A slider for a kind, child of `parent`; null for any other kind, or without memory. */
    static DvSlider* create(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent,
                            int cellRow, int cellColumn);

    ~DvSlider() override;

    /** The text of the value when a drag began, base 10; empty once a command has taken it over. */
    SbString& oldValueText() { return m_oldValueText; }
    /** Whether a text has been typed that is not committed. */
    bool hasPendingEdit() const;
    /** Takes a typed text as the value, without committing it. */
    void takePendingEdit();
    /** Shows the value again in place of what was typed. */
    void revertPendingEdit();
    /** Ends a drag without a commit: the field is gone. */
    void cancelDrag();
    // What a type of value implements, in this order; the rest of it follows below.
    /** A text that the user has typed; the integer sliders read its base off it. */
    virtual void onTextEntered(const QString& text);

public slots:
    void changeValueFromEdit();
    void eventNotify(bool state);
    void beginCallback();
    void finishCallback();
    void valueChangeSlot(int newValue);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    DvSlider(int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow, int cellColumn);

    /** Writes the value into the line. */
    virtual void updateText() = 0;
    /** Takes the line's text, clamped or widening the range, as the value. */
    virtual void updateValueFromText() = 0;
    /** Takes a slider position as the value. */
    virtual void updateValueFromPosition(int position) = 0;
    /** Keeps the value's text for the command to come. */
    virtual void storeOldValue() = 0;

public:
    /** The value as the text that goes to a field: base 10, and exact. */
    virtual QString valueText() const = 0;
    /** Starts with a range, for a cell; one of integers leaves the fractions out. */
    virtual void setCellRange(double minimum, double maximum, bool bounded) = 0;
    /** Shows a cell's text as the value; nothing is committed. */
    void showCellText(const QString& text);

protected:
    DvLineEdit& line() const { return *m_lineEdit; }
    /** Writes a text into the line and shows its start. */
    void showText(const QString& text);
    /** Moves the slider to m_position; nobody takes that for a user's action. */
    void moveToPosition();
    void setSliderRange(int minimum, int maximum);

    SbString m_oldValueText;
    int m_position = 0; ///< the slider position that corresponds to the value

private slots:
    void revertFromLine();

private:
    void buildControls();
    void connectControls();
    void commit();

    DvLineEdit* m_lineEdit = nullptr;
    QSlider* m_slider = nullptr;
    QCheckBox* m_liveBox = nullptr;
    bool m_liveNotify = true;        ///< every slider movement commits
    bool m_inSliderCallback = false; ///< a drag or a change by the slider is being handled
    bool m_acceptSliderSignals = false;
    const int m_cellMode;
    DvSliderOwner& m_owner;
    const int m_cellRow;
    const int m_cellColumn;
};
