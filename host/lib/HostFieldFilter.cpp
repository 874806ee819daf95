#include "lib/HostFieldFilter.h"

#include "lib/HostFieldSummary.h"
#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/fields/SoField.h>

void HostFieldFilter::setText(const QString& text)
{
    m_text = text;
    if (text.isEmpty())
        setCount(int(m_texts.size()));
}

void HostFieldFilter::setCount(int count)
{
    m_texts.assign(size_t(count), {});
}

void HostFieldFilter::forgetValue(int index)
{
    m_texts[size_t(index)].isValueRead = false;
}

HostFieldFilter::Answer HostFieldFilter::accepts(int index, SoField& field, const Naming& name)
{
    if (m_text.isEmpty())
        return Yes;
    Texts& texts = m_texts[size_t(index)];
    // A line that is typed into holds no line breaks: nothing is found across this one.
    if (texts.head.isEmpty())
        texts.head = name(index) + '\n' + HostText::fromCoin(field.getTypeId().getName());
    if (isIn(texts.head))
        return Yes;
    if (!texts.isValueRead) {
        if (m_readsLeft <= 0)
            return Unread;
        --m_readsLeft;
        texts.value = HostFieldSummary::text(field);
        texts.isValueRead = true;
    }
    return isIn(texts.value) ? Yes : No;
}
