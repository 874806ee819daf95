#include "FieldEditors/DvSFLinesWidget.h"

#include "FieldEditors/DvLayoutConstants.h"
#include "FieldEditors/DvLineEdit.h"
#include "FieldEditors/DvRealValidator.h"

#include <QGridLayout>
#include <QLabel>
#include <QTextDocumentFragment>

DvSFLinesWidget::DvSFLinesWidget(const QString& objectName, DvLinesForm form)
    : DvSFieldWidget(DvSlider::NoKind, objectName), m_form(std::move(form))
{}

DvSFLinesWidget::~DvSFLinesWidget() = default;

void DvSFLinesWidget::buildEditor(QHBoxLayout& editLayout)
{
    auto* const grid = new QGridLayout;
    grid->setObjectName(QLatin1String(m_form.layoutName));
    const int margin = DvLayoutConstants::value(m_form.margin);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setVerticalSpacing(DvLayoutConstants::value(m_form.verticalSpacing));
    grid->setHorizontalSpacing(DvLayoutConstants::value(m_form.horizontalSpacing));
    grid->setColumnStretch(1, 1);
    if (m_form.boxName) {
        auto* const box = new QWidget(frame());
        box->setObjectName(QLatin1String(m_form.boxName));
        box->setLayout(grid);
        editLayout.addWidget(box);
    } else {
        editLayout.addLayout(grid);
    }
    for (int row = 0; row < static_cast<int>(m_form.labels.size()); ++row)
        buildRow(*grid, row);
}

void DvSFLinesWidget::buildRow(QGridLayout& grid, int row)
{
    auto* const label = new QLabel(QLatin1String(m_form.labels[static_cast<std::size_t>(row)]));
    label->setObjectName(QLatin1String(m_form.labelName));
    label->setMinimumHeight(DvLayoutConstants::value("SFVecLabelHeight"));
    grid.addWidget(label, row, 0);

    auto* const line = new DvLineEdit(m_form.lineName, frame());
    // A minimum, so that nothing is cut off at a larger font.
    line->setMinimumHeight(DvLayoutConstants::value("SFVecLineHeight"));
    line->setValidator(new DvRealValidator(line));
    line->setAccessibleName(QTextDocumentFragment::fromHtml(label->text()).toPlainText());
    label->setBuddy(line);
    grid.addWidget(line, row, 1);
    // Where there is too little room the dock scrolls or grows; no line is pressed flat.
    grid.setRowMinimumHeight(row, line->sizeHint().height());
    connect(line, SIGNAL(editingFinished()), this, SLOT(setFocusLeaveEvent()));
    connect(line, SIGNAL(returnPressed()), this, SLOT(setCommandValue()));
    connect(line, SIGNAL(revertRequested()), this, SLOT(revertPendingEdit()));
    m_lines.add(line);
}

bool DvSFLinesWidget::hasPendingEdit() const
{
    return m_lines.isModified();
}

void DvSFLinesWidget::clearPendingEdit()
{
    m_lines.clearModified();
}
