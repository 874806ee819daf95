#pragma once

#include "FieldEditors/DvMFTextRows.h"

/**
 * The common base of the six single-column number editors; never registered itself.
 *
 * Kept on purpose: its edits are written to the field and make no undo entry, unlike those of every
 * other multiple-value editor.
 */
class DvMFLineWidget : public DvMFTextRows
{
    Q_OBJECT

public:
    /** Copies a number out of a field, byte for byte. */
    using NumberAt = QByteArray (*)(const SoMField& field, int row);

    DvMFLineWidget(SoType handledType, NumberAt readNumber, const char* typeName, int valueKind,
                   const QString& objectName);

    QByteArray rowValue(int row) const override;
    void applyCell(int row, int column, const QString& text) override;

protected:
    /** The NumberAt of a field class. */
    template <class Field>
    static QByteArray numberAt(const SoMField& field, int row)
    {
        return bytesOf(static_cast<const Field&>(field)[row]);
    }

private:
    const NumberAt m_readNumber;
};
