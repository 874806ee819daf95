#include "app/AppSampleMessages.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QString>

#include <iostream>

namespace {

const char* const Output = "What the program writes looks like this.";
const char* const Warning = "a warning looks like this";
const char* const MissingNode = "aNodeThatIsNotThere";

} // namespace

void AppSampleMessages::say()
{
    std::cout << Output;
    SoDebugError::postWarning("AppSampleMessages::say", "%s", Warning);
    const QByteArray scene =
        QByteArray("#Inventor V2.1 ascii\nSeparator { USE ").append(MissingNode).append(" }\n");
    SoInput input;
    input.setBuffer(scene.constData(), std::size_t(scene.size()));
    SoDB::readAll(&input);
}

bool AppSampleMessages::areIn(const QString& text)
{
    return text.contains(QLatin1String(Output)) && text.contains(QLatin1String(Warning)) &&
           text.contains(QLatin1String(MissingNode));
}
