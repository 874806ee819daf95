#pragma once

#include "FieldEditors/DvMFieldWidget.h"
#include "FieldEditors/DvNumberLines.h"

#include <QPointer>

class DvPopupFrame;
class QGridLayout;

/**
 * A multiple-value editor whose current row is edited in a pop-up grid of lines, one number each,
 * instead of in the table's cells.
 */
class DvTablePopupWidget : public DvMFieldWidget
{
    Q_OBJECT

public:
    /** The pop-up's rows and columns. */
    DvTablePopupWidget(int rows, int columns, DvTableForm form,
                       const QString& objectName = QStringLiteral("DvTablePopupWidget"));
    ~DvTablePopupWidget() override;

    void createWidgets() override;
    void refresh() override;

public slots:
    void languageChange() override;
    /** Drops what has been typed into the pop-up. */
    void setDefaultFieldValue() override;
    /** Shows the pop-up with the current row beside the edit button, or hides it. */
    void setEditFrame();
    /** Commits what has been typed into the pop-up, if anything has. */
    void s_leavePopup();

protected:
    void fieldReleased() override;
    /** Shows the numbers of a row in the pop-up's lines. */
    virtual void showRow(DvNumberLines& lines, int row) = 0;
    const DvNumberLines& lines() const { return m_lines; }

private slots:
    void s_currentRowChanged();
    void s_revert();

private:
    void buildPopup();
    void buildPopupLine(QGridLayout& grid, int row, int column);
    void showCurrentRow();

    const int m_rows;
    const int m_columns;
    QPushButton* m_editButton = nullptr;
    QPointer<DvPopupFrame> m_popup; ///< a child of the frame
    DvNumberLines m_lines;
};
