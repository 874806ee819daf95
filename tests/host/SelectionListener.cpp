#include "tests/host/SelectionListener.h"

#include <Inventor/SbName.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>

SelectionListener::SelectionListener(TvkServices& services)
{
    connect(&services, SIGNAL(selectedNodeChanged(SoFieldContainer*)),
            SLOT(nodeChanged(SoFieldContainer*)));
    connect(&services, SIGNAL(selectedFieldChanged(SoField*)), SLOT(fieldChanged(SoField*)));
}

void SelectionListener::nodeChanged(SoFieldContainer* node)
{
    log << QString("node ") + (node ? node->getTypeId().getName().getString() : "null");
    if (onNode)
        onNode(node);
}

void SelectionListener::fieldChanged(SoField* field)
{
    log << QString("field ") + (field ? field->getTypeId().getName().getString() : "null");
    if (onField)
        onField(field);
}
