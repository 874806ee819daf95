#pragma once

#include "TavrikHostExport.h"

#include <QString>

#include <unordered_map>

class SoField;

/**
 * Picks fields by a piece of their name, type or value, in whatever case. A value is read only when
 * name and type do not hold the piece, and then kept until it is forgotten: what is typed letter by
 * letter reads each value once.
 */
class TAVRIKHOST_EXPORT HostFieldFilter
{
public:
    /** The piece to look for; an empty one picks every field. */
    void setText(const QString& text);
    const QString& text() const { return m_text; }

    bool accepts(SoField& field, const QString& name);
    /** The field's value is another now. It need not live any more. */
    void forget(const SoField* field) { m_values.erase(field); }
    void forgetAll() { m_values.clear(); }

private:
    bool isIn(const QString& text) const { return text.contains(m_text, Qt::CaseInsensitive); }
    const QString& value(SoField& field);

    QString m_text;
    std::unordered_map<const SoField*, QString> m_values; ///< as they were last read
};
