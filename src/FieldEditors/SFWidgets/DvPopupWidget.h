#pragma once

#include "FieldEditors/DvNumberLines.h"
#include "FieldEditors/SFWidgets/DvSFLineWidget.h"

#include <QPointer>

class DvPopupFrame;
class QGridLayout;
class QPushButton;
class QValidator;

/**
 * The field's text in one line, and a button that pops up a grid of lines, one number each. Closing
 * the pop-up commits what has been typed into it.
 */
class DvPopupWidget : public DvSFLineWidget
{
    Q_OBJECT

public:
    DvPopupWidget(int rows, int columns,
                  const QString& objectName = QStringLiteral("DvPopupWidget"));
    ~DvPopupWidget() override;

    bool hasPendingEdit() const override;

public slots:
    /** Shows the pop-up beside the button, or hides it when it is shown. */
    void managePopFramePos();
    void languageChange() override;

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void connectLine() override;
    void fieldReleased() override;
    void clearPendingEdit() override;
    /** The validator of the pop-up's lines; real numbers unless a type says otherwise. */
    virtual QValidator* newValidator(QObject* parent) const;

    void showNumber(std::size_t index, double number) { m_lines.show(index, number); }
    double number(std::size_t index, double component) const
    {
        return m_lines.number(index, component);
    }
    /** Whether the line with the whole text is being edited, and not the pop-up's. */
    bool isTextBeingEdited() const;

private slots:
    /** The pop-up closes: commits what has been typed, as leaving a line does. */
    void finishPopup();

private:
    void buildPopup();
    void buildPopupLine(QGridLayout& grid, int row, int column);

    const int m_rows;
    const int m_columns;
    QPushButton* m_editButton = nullptr;
    QPointer<DvPopupFrame> m_popup; ///< a child of the frame
    DvNumberLines m_lines;
};
