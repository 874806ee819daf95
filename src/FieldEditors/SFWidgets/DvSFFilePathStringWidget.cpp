#include "FieldEditors/SFWidgets/DvSFFilePathStringWidget.h"

#include "FieldEditors/DvLayoutConstants.h"
#include "FieldEditors/DvLineEdit.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>

DvSFFilePathStringWidget::DvSFFilePathStringWidget()
    : DvSFTextWidget(QStringLiteral("DvSFFilePathStringWidget"))
{}

void DvSFFilePathStringWidget::buildEditor(QHBoxLayout& editLayout)
{
    DvSFTextBox::buildEditor(editLayout);
    m_openFileButton = new QPushButton(frame());
    m_openFileButton->setObjectName(QStringLiteral("openFileButton"));
    m_openFileButton->setIcon(m_openFileButton->style()->standardIcon(QStyle::SP_DirOpenIcon));
    m_openFileButton->setMaximumSize(DvLayoutConstants::value("buttonWidth"),
                                     DvLayoutConstants::value("buttonHeight"));
    editLayout.addWidget(m_openFileButton);
    connect(m_openFileButton, SIGNAL(clicked()), this, SLOT(openFileDialog()));
}

void DvSFFilePathStringWidget::languageChange()
{
    DvSFTextBox::languageChange();
    if (!m_openFileButton)
        return;
    m_openFileButton->setToolTip(tr("Choose a file"));
    m_openFileButton->setAccessibleName(m_openFileButton->toolTip());
}

void DvSFFilePathStringWidget::openFileDialog()
{
    const unsigned edited = fieldNumber();
    const QString folder = QFileInfo(line().text()).absolutePath();
    const QString path = QFileDialog::getOpenFileName(frame(), tr("Open File"), folder);
    // While the dialog was open, another field may have been selected, or this one may have died.
    if (path.isEmpty() || !field() || edited != fieldNumber())
        return;
    line().setText(path);
    setCommandValue();
}
