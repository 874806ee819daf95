#pragma once

#include "TavrikExtenderAPIExport.h"

class SoField;

/**
 * One undoable edit. Whoever makes it hands it to TvkServices::pushCommand(); from then on the host
 * owns it, calls execute() once, and undo() and redo() as the user steps through the undo stack.
 */
class TAVRIKEXTENDERAPI_EXPORT TvkCommand
{
public:
    TvkCommand(const TvkCommand&) = delete;
    TvkCommand& operator=(const TvkCommand&) = delete;

    virtual void execute() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual ~TvkCommand();

    /**
     * The field that the command writes, or null where it writes none. Commands hold their field by
     * a bare pointer: the host uses this to drop a command when the field's container dies, and to
     * word the entry in its history.
     */
    SoField* getField() const { return m_field; }

protected:
    explicit TvkCommand(SoField* field = nullptr) : m_field(field) {}

private:
    SoField* const m_field;
};
