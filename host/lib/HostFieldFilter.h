#pragma once

#include "TavrikHostExport.h"

#include <QString>

#include <functional>
#include <vector>

class SoField;

/**
 * Picks fields by a piece of their name, type or value, in whatever case. What has been read is
 * kept while there is a piece to look for. Values are slow to read, so they are read only where
 * name and type do not hold the piece, and only so many at a time.
 */
class TAVRIKHOST_EXPORT HostFieldFilter
{
public:
    enum Answer { No, Yes, Unread };
    using Naming = std::function<QString(int index)>;

    /** The piece to look for; an empty one picks every field. */
    void setText(const QString& text);
    /** Other fields, so many of them: nothing is known of these. */
    void setCount(int count);
    /** The field has another value now. */
    void forgetValue(int index);

    /** From now on this many values may be read. */
    void allowReads(int count) { m_readsLeft = count; }
    /** Unread when the value would have to be read and no more may be. */
    Answer accepts(int index, SoField& field, const Naming& name);

private:
    struct Texts
    {
        QString head; ///< name and type
        QString value;
        bool isValueRead = false;
    };
    bool isIn(const QString& text) const { return text.contains(m_text, Qt::CaseInsensitive); }

    QString m_text;
    int m_readsLeft = 0;
    std::vector<Texts> m_texts; ///< by index; an empty head has not been read
};
