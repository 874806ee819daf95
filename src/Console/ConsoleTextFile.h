#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/** A text as a file in Latin-1; what Latin-1 does not have becomes a question mark. */
class ConsoleTextFile
{
    Q_DECLARE_TR_FUNCTIONS(ConsoleTextFile)

public:
    explicit ConsoleTextFile(const QString& text);

    /** How many characters are question marks that were something else. */
    int replacedCharacters() const { return m_replaced; }

    /** The file is written whole or left as it was; false then, and errorString() says why. */
    bool write(const QString& path) const;
    const QString& errorString() const { return m_error; }

private:
    QByteArray m_bytes;
    int m_replaced = 0;
    mutable QString m_error;
};
