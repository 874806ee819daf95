#include "Console/ConsoleTextFile.h"

#include <QSaveFile>

ConsoleTextFile::ConsoleTextFile(const QString& text)
{
    constexpr ushort lastOfLatin1 = 0xFF;
    m_bytes.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        const bool isKnown = unit.unicode() <= lastOfLatin1;
        m_bytes.append(isKnown ? unit.toLatin1() : '?');
        if (isKnown)
            continue;
        ++m_replaced;
        // One character may take two units.
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
    }
}

bool ConsoleTextFile::write(const QString& path) const
{
    QSaveFile file(path);
    // Devices, and folders in which no other file may be made.
    file.setDirectWriteFallback(true);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(m_bytes) == m_bytes.size() && file.commit();
    if (!isWritten)
        m_error = tr("\"%1\" could not be written: %2.").arg(path, file.errorString());
    return isWritten;
}
