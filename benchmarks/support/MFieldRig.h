#pragma once

#include "benchmarks/support/CellText.h"
#include "benchmarks/support/FilledField.h"
#include "benchmarks/support/TableWindow.h"

class DvMFieldTable;

/** A multiple-value editor in a window; for its commands the program makes a HostServices first. */
class MFieldRig
{
public:
    explicit MFieldRig(const MFieldKind& kind);
    ~MFieldRig();
    MFieldRig(const MFieldRig&) = delete;
    MFieldRig& operator=(const MFieldRig&) = delete;

    DvMFieldWidget& editor() const { return *m_editor; }
    DvMFieldTable& table() const;
    /** What the editor shows in a cell. */
    CellText cellText() const;

    /** Gives a field to the editor, without waiting for the picture. */
    void edit(const FilledField& filled);
    /** The same up to the end of the first picture of it. */
    void select(const FilledField& filled);
    void deselect();
    /** What follows a change: the sensors, then the events and the picture. */
    static void deliver();

private:
    std::unique_ptr<DvMFieldWidget> m_editor;
    std::unique_ptr<TableWindow> m_window;
};
