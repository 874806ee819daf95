#include "lib/HostFieldOrigin.h"

#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/engines/SoEngine.h>
#include <Inventor/engines/SoEngineOutput.h>
#include <Inventor/engines/SoNodeEngine.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/lists/SoFieldList.h>

#include <QStringList>

namespace {

QString outputTitle(SoEngineOutput& output)
{
    SbName name;
    const SoFieldContainer* container = output.getFieldContainer();
    if (!output.isNodeEngineOutput())
        output.getContainer()->getOutputName(&output, name);
    else
        output.getNodeContainer()->getOutputName(&output, name);
    return HostText::title(container) + QStringLiteral(", ") + HostText::fromCoin(name);
}

} // namespace

QString HostFieldOrigin::name(SoField& field)
{
    SbName name;
    if (const SoFieldContainer* container = field.getContainer())
        container->getFieldName(&field, name);
    return HostText::fromCoin(name);
}

QString HostFieldOrigin::connections(SoField& field)
{
    SoFieldList masters;
    field.getConnections(masters);
    QStringList titles;
    for (int i = 0; i < masters.getLength(); ++i)
        titles << HostText::title(masters[i]->getContainer()) + QStringLiteral(", ") +
                      name(*masters[i]);
    SoEngineOutput* output = nullptr;
    if (field.getConnectedEngine(output) && output)
        titles << outputTitle(*output);
    return titles.join(QLatin1Char('\n'));
}
