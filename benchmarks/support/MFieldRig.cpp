#include "benchmarks/support/MFieldRig.h"

#include "benchmarks/support/Bench.h"
#include "scenegraph/SoTypedObject.h"

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvMFieldWidget.h"

#include <Inventor/SoDB.h>
#include <Inventor/sensors/SoSensorManager.h>

MFieldRig::MFieldRig(const MFieldKind& kind) : m_editor(kind.newEditor())
{
    m_editor->createWidgets();
    m_window = std::make_unique<TableWindow>(*m_editor->getWidget());
}

MFieldRig::~MFieldRig()
{
    m_editor->deactivate();
    m_window.reset();
    m_editor->releaseWidgets();
}

DvMFieldTable& MFieldRig::table() const
{
    return m_editor->table();
}

CellText MFieldRig::cellText() const
{
    return [this](int row, int column) { return m_editor->cellText(row, column); };
}

void MFieldRig::edit(const FilledField& filled)
{
    SoTypedObject object(&filled.field());
    m_editor->setEditedObject(&object);
    m_editor->activate();
}

void MFieldRig::select(const FilledField& filled)
{
    edit(filled);
    Bench::waitForPaint(*table().viewport());
}

void MFieldRig::deselect()
{
    m_editor->deactivate();
    TableWindow::settle();
}

void MFieldRig::deliver()
{
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    TableWindow::handleEvents();
}
