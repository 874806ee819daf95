#include "TvkText.h"

#include <QTextCodec>

QString TvkText::fromBytes(const QByteArray& bytes)
{
    static QTextCodec* const codec = QTextCodec::codecForName("UTF-8");
    // A byte order mark is a character of the text like any other; dropped, a commit would lose it.
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString utf8 = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    const bool isUtf8 = state.invalidChars == 0 && state.remainingChars == 0;
    return isUtf8 ? utf8 : QString::fromLatin1(bytes);
}
