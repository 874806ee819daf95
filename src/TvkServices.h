#pragma once

#include "TavrikExtenderAPIExport.h"

#include <QObject>

class SoField;
class SoFieldContainer;
class TvkCommand;

/** The host's selection and its undo stack. One per process, made by the host. */
class TAVRIKEXTENDERAPI_EXPORT TvkServices : public QObject
{
    Q_OBJECT

public:
    ~TvkServices() override;

    /** The host's services; null while no host is up. */
    static TvkServices* getInstance();
    /** For the host: the services that getInstance() answers from now on. Not owned. */
    static void setInstance(TvkServices* services);

    /**
     * Takes the command over, executes it once and records it on the undo stack. A null command,
     * which a caller hands over when it could not make one, is ignored.
     */
    virtual void pushCommand(TvkCommand* command) = 0;

signals:
    /** The node newly selected in the host; null when there is none. */
    void selectedNodeChanged(SoFieldContainer* node);
    /** The field newly selected in the host; null when there is none. */
    void selectedFieldChanged(SoField* field);

protected:
    TvkServices() = default;
};
