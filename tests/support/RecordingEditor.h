#pragma once

#include <TvkEditor.h>

#include <QStringList>

/**
 * An editor for tests, for one type: writes down the calls of its lifecycle and the objects that it
 * is given, such as `editor setEditedObject SFFloat`. Its widget is a frame of its own.
 */
class RecordingEditor : public TvkEditor
{
    Q_OBJECT

public:
    RecordingEditor(const char* name, SoType handledType, QStringList& log);
    ~RecordingEditor() override;

    void activate() override;
    void deactivate() override;
    void createWidgets() override;
    void releaseWidgets() override;
    void setEditedObject(SoTypedObject* object) override;

private:
    QStringList& m_log;
};
