#include "FieldEditors/DvFieldMaster.h"

#include <Inventor/engines/SoEngine.h>
#include <Inventor/engines/SoEngineOutput.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>

#include <QString>

namespace {

QString typeNameOf(const SoFieldContainer& container)
{
    return QLatin1String(container.getTypeId().getName().getString());
}

} // namespace

QString DvFieldMaster::nameOf(const SoField& field)
{
    SoField* master = nullptr;
    if (field.getConnectedField(master) && master->getContainer()) {
        SbName name;
        master->getContainer()->getFieldName(master, name);
        return QStringLiteral("%1.%2").arg(typeNameOf(*master->getContainer()),
                                           QLatin1String(name.getString()));
    }
    SoEngineOutput* output = nullptr;
    if (field.getConnectedEngine(output) && output->getContainer())
        return QStringLiteral("engine %1").arg(typeNameOf(*output->getContainer()));
    return QStringLiteral("elsewhere");
}
