#pragma once

#include "FieldEditors/DvSFieldWidget.h"

#include <vector>

class QCheckBox;
class QVBoxLayout;

/**
 * Edits an SoSFBitMask: a check box for each of the field's names. A name may stand for several
 * bits, and so for other names; such a box follows its members, and takes them along.
 */
class DvSFBitMaskWidget final : public DvSFieldWidget
{
    Q_OBJECT

public:
    using DvSFieldWidget::applyChanges;

    DvSFBitMaskWidget();

    void refresh() override;
    void applyChanges() override;

public slots:
    /** Takes the boxes, of which the sender has just been clicked, as the field's value. */
    void setBitMaskValue();

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void fieldReplaced() override;

private:
    struct Bit
    {
        QCheckBox* box;
        int value;
    };

    void clearBoxes();
    void addBox(const QString& name, int value);
    void takeAlong(const Bit& clicked);
    int named() const;
    int combined() const;

    QVBoxLayout* m_boxLayout = nullptr;
    std::vector<Bit> m_bits;
    int m_clickedBits = 0;
};
