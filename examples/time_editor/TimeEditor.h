#pragma once

#include <TvkEditor.h>

#include <Inventor/sensors/SoFieldSensor.h>

class QDateTimeEdit;
class SoSFTime;

/** Edits an SoSFTime as a date and a time of day, in place of the line with its seconds. */
class TimeEditor final : public TvkEditor
{
    Q_OBJECT

public:
    TimeEditor();
    ~TimeEditor() override;

    void activate() override;
    void deactivate() override;
    void createWidgets() override;
    void releaseWidgets() override;

private slots:
    void s_editingFinished();

private:
    static void fieldChanged(void* editor, SoSensor*);
    static void fieldDied(void* editor, SoSensor*);
    void refresh();

    QDateTimeEdit* m_edit = nullptr; ///< a child of the widget
    SoFieldSensor m_sensor;
    SoSFTime* m_field = nullptr; ///< not owned
};
