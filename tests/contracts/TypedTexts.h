#pragma once

#include <QByteArray>
#include <QString>

class DvSFieldWidget;
class QLineEdit;
class SoField;

/** Every line that the user can type into, in the editor's order; those of a pop-up come last. */
QList<QLineEdit*> typedLines(const DvSFieldWidget& editor);

/**
 * The bits of the value that a field must have once a text has been typed into one of its editor's
 * lines and Return pressed: an independent telling of each editor's rule.
 */
QByteArray bitsAfterTyping(SoField& field, int line, const QString& text);
