#include "lib/HostFieldFilter.h"

#include "lib/HostFieldSummary.h"
#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/fields/SoField.h>

void HostFieldFilter::setText(const QString& text)
{
    m_text = text;
    if (text.isEmpty())
        forgetAll();
}

bool HostFieldFilter::accepts(SoField& field, const QString& name)
{
    return m_text.isEmpty() || isIn(name) ||
           isIn(HostText::fromCoin(field.getTypeId().getName())) || isIn(value(field));
}

const QString& HostFieldFilter::value(SoField& field)
{
    const auto [found, isNew] = m_values.try_emplace(&field);
    if (isNew)
        found->second = HostFieldSummary::text(field);
    return found->second;
}
