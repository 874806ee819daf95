#pragma once

#include "tests/support/RecordingExtension.h"

#include <TvkServices.h>
#include <TvkShell.h>

#include <Inventor/fields/SoField.h>
#include <Inventor/nodes/SoNode.h>

#include <QDockWidget>
#include <QPointer>

/** An extension with a dock that is never empty; it remembers what it was told to be selected. */
class DockExtension : public RecordingExtension
{
public:
    DockExtension(const char* name, Qt::DockWidgetArea area, QStringList& log)
        : RecordingExtension(name, log), m_area(area)
    {}
    ~DockExtension() override { delete dock.data(); }

    void createWidgets() override
    {
        RecordingExtension::createWidgets();
        dock = new QDockWidget(QString::fromLatin1(getName().getString()));
        dock->setWidget(new QWidget(dock));
    }
    void activate() override
    {
        RecordingExtension::activate();
        told = "nothing";
        TvkServices* const services = TvkServices::getInstance();
        connect(services, &TvkServices::selectedNodeChanged, this, [this](SoFieldContainer* node) {
            told = node ? node->getName().getString() : "no node";
        });
        connect(services, &TvkServices::selectedFieldChanged, this, [this](SoField* field) {
            SbName name("no field");
            if (field)
                field->getContainer()->getFieldName(field, name);
            told += QLatin1String(", ") + name.getString();
        });
        TvkShell::getInstance()->addDockWidget(dock, m_area);
    }
    void deactivate() override
    {
        RecordingExtension::deactivate();
        disconnect(TvkServices::getInstance(), nullptr, this, nullptr);
        TvkShell::getInstance()->removeDockWidget(dock);
    }
    void show() override
    {
        RecordingExtension::show();
        dock->show();
    }
    void releaseWidgets() override
    {
        RecordingExtension::releaseWidgets();
        delete dock.data();
    }

    QPointer<QDockWidget> dock;
    QString told; ///< since its activation

private:
    const Qt::DockWidgetArea m_area;
};
