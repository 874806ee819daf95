#include "FieldEditors/DvEditorParts.h"

#include "FieldEditors/DvLayoutConstants.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

template <class Layout>
Layout* newLayout(const char* objectName, const char* margin, const char* spacing)
{
    auto* const layout = new Layout;
    const int width = DvLayoutConstants::value(margin);
    layout->setObjectName(QLatin1String(objectName));
    layout->setContentsMargins(width, width, width, width);
    layout->setSpacing(DvLayoutConstants::value(spacing));
    return layout;
}

} // namespace

QHBoxLayout* DvEditorParts::newRow(const char* objectName, const char* margin, const char* spacing)
{
    return newLayout<QHBoxLayout>(objectName, margin, spacing);
}

QVBoxLayout* DvEditorParts::newColumn(const char* objectName, const char* margin,
                                      const char* spacing)
{
    return newLayout<QVBoxLayout>(objectName, margin, spacing);
}

QPushButton* DvEditorParts::newButton(const char* objectName, const QIcon& icon, QWidget* parent)
{
    auto* const button = new QPushButton(parent);
    button->setObjectName(QLatin1String(objectName));
    button->setMaximumSize(DvLayoutConstants::value("buttonWidth"),
                           DvLayoutConstants::value("buttonHeight"));
    button->setIcon(icon);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

void DvEditorParts::widenForNumber(QLineEdit& line)
{
    line.setMinimumWidth(line.fontMetrics().horizontalAdvance(QStringLiteral("-0.123456 ")));
}

void DvEditorParts::dressLabel(QLabel& label, const char* typeName)
{
    label.setObjectName(QStringLiteral("m_label"));
    QFont font = label.font();
    font.setPointSize(DvLayoutConstants::value("labelPointSize"));
    label.setFont(font);
    label.setFrameShape(QFrame::Box);
    label.setFrameShadow(QFrame::Plain);
    label.setLineWidth(DvLayoutConstants::value("labelLineWidth"));
    label.setScaledContents(true);
    if (label.text().isEmpty())
        label.setText(QStringLiteral("<p align=\"center\">%1</p>").arg(QLatin1String(typeName)));
}
