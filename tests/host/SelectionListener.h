#pragma once

#include <TvkServices.h>

#include <QObject>
#include <QStringList>

#include <functional>

class SoField;
class SoFieldContainer;

/** Listens to the services as a dock does, and does what the test wants done while it is told. */
class SelectionListener : public QObject
{
    Q_OBJECT

public:
    explicit SelectionListener(TvkServices& services);

    QStringList log;
    // Called within each announcement.
    std::function<void(SoFieldContainer*)> onNode;
    std::function<void(SoField*)> onField;

private slots:
    void nodeChanged(SoFieldContainer* node);
    void fieldChanged(SoField* field);
};
