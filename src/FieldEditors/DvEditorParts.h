#pragma once

class QBoxLayout;
class QHBoxLayout;
class QIcon;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
class QWidget;

/** The parts that the single-value and the multiple-value editors have in common. */
namespace DvEditorParts {

/** A row; margin and spacing are names of layout constants. */
QHBoxLayout* newRow(const char* objectName, const char* margin, const char* spacing);
/** The same as a column. */
QVBoxLayout* newColumn(const char* objectName, const char* margin, const char* spacing);
/** A small button with an icon, which takes no focus. */
QPushButton* newButton(const char* objectName, const QIcon& icon, QWidget* parent);
/** Makes a line wide enough for most numbers, and no wider: there may be four beside each other. */
void widenForNumber(QLineEdit& line);
/** What an editor's label looks like, with a type's name where it has no text yet. */
void dressLabel(QLabel& label, const char* typeName);

} // namespace DvEditorParts
