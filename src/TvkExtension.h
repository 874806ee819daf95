#pragma once

#include "TavrikExtenderAPIExport.h"

#include <Inventor/SbString.h>

#include <QObject>

class TvkProfileSetting;

/**
 * One thing that a plug-in contributes: a dock, a tool bar, an editor.
 *
 * The host calls createWidgets() once, then activate(), show(), hide() and deactivate() as the
 * active profile and the user require, and releaseWidgets() before the extension is destroyed.
 * deactivate() and releaseWidgets() may come without their counterparts.
 */
class TAVRIKEXTENDERAPI_EXPORT TvkExtension : public QObject
{
    Q_OBJECT

public:
    TvkExtension() = default;
    ~TvkExtension() override;

    /** A subclass calls the base first, then does its own work; so for the next two. */
    virtual void activate();
    virtual void deactivate();
    virtual void hide();
    /** Builds the extension's widgets, without parent and hidden. */
    virtual void createWidgets() = 0;
    virtual void show();
    /** Deletes the widgets and clears the pointers to them. */
    virtual void releaseWidgets() = 0;

    /** What the active profile says of this extension; null outside a profile. Not owned. */
    TvkProfileSetting* getProfileSetting() const { return m_profileSetting; }
    /** For the host, which owns the settings. */
    void setProfileSetting(TvkProfileSetting* setting) { m_profileSetting = setting; }

    /** Whether the last of activate() and deactivate() was the first. */
    bool isActive() const { return m_active; }
    /** Whether the last of show() and hide() was the first. */
    bool isShown() const { return m_shown; }

    const SbString& getName() const { return m_name; }
    const SbString& getDescription() const { return m_description; }
    const SbString& getVendor() const { return m_vendor; }
    const SbString& getVersion() const { return m_version; }

protected:
    // Set by the subclass's constructor.
    SbString m_name;
    SbString m_description;
    SbString m_vendor;
    SbString m_version;

private:
    TvkProfileSetting* m_profileSetting = nullptr;
    bool m_active = false;
    bool m_shown = false;
};
