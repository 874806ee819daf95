#pragma once

#include "TavrikHostExport.h"

#include <TvkProfile.h>

#include <QByteArray>
#include <QSet>
#include <QString>

/** What one profile has in it. Extensions are named by their keys, so that also those that are not
 *  loaded now have their place. */
struct HostProfileContents
{
    /** Docks and tool bars. One that is not named is left out, also when it comes new. */
    QSet<QString> extensions;
    /** Editors. One that is not named is there, also when it comes new: its fields need it. */
    QSet<QString> withoutEditors;

    bool operator==(const HostProfileContents& other) const
    {
        return extensions == other.extensions && withoutEditors == other.withoutEditors;
    }
};

/** A profile of the host's: its name in full, what is in it, where its docks stand. */
class TAVRIKHOST_EXPORT HostProfile : public TvkProfile
{
public:
    enum Kind { Everything, Selected };

    /** One of the first kind has everything that there is, whatever its contents say. */
    HostProfile(QString name, Kind kind);
    ~HostProfile() override;

    bool hasEverything() const { return m_kind == Everything; }

    /** The name as the user wrote it; getName() is what of it Latin-1 can hold. */
    const QString& name() const { return m_fullName; }
    void setName(const QString& name) { m_fullName = name; }
    /** Brings getName() up to date; the number is the profile's in the list, from 1. */
    void updateShortName(int number);

    bool hasExtension(const QString& key) const;
    bool hasEditor(const QString& key) const;

    HostProfileContents contents;
    QByteArray layout; ///< as QMainWindow saves it; empty until the profile has been left once

private:
    Kind m_kind;
    QString m_fullName;
};
