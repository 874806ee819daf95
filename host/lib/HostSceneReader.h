#pragma once

#include <QString>
#include <QStringList>

class SoError;
class SoInput;
class SoSeparator;

/**
 * Reads one scene file, unless it is nested so deeply that reading or showing it would exhaust the
 * stack. What Coin's reader complains about meanwhile is kept, and passed on to whoever listened
 * before.
 */
class HostSceneReader
{
public:
    /** Referenced zero times; null when there is no scene in the file, and error() says why. */
    SoSeparator* read(const QString& path);

    QString error() const { return m_error; }
    QStringList complaints() const { return m_complaints; }

private:
    static void complain(const SoError* error, void* reader);

    SoSeparator* parse(const QString& path);
    void noteRest(SoInput& input);

    QString m_error;
    QStringList m_complaints;
};
