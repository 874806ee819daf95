#pragma once

class QObject;
class QString;
class QValidator;

/** What a table's cell takes as its text, by the value kind of the table's delegate. */
namespace DvCellValidators {

/** The validator of a text that is typed; null for texts. */
QValidator* newValidator(int valueKind, QObject* parent);
/** The validator of a text that is not typed: more decimals than one may type do no harm. */
QValidator* newEntryValidator(int valueKind, QObject* parent);
/** An integer in any of the bases of Coin's files, as the sliders read it, in base 10. */
QString inBase10(const QString& text);

} // namespace DvCellValidators
