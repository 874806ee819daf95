#pragma once

#include <QLocale>

#include <clocale>

/** A user's language, for Qt and for the C library, for as long as this lives. */
class UserLanguage
{
public:
    /** A name such as "de_DE". */
    explicit UserLanguage(const QByteArray& name)
    {
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
        m_isInstalled = std::setlocale(LC_ALL, (name + ".UTF-8").constData()) ||
                        std::setlocale(LC_ALL, name.constData());
    }
    ~UserLanguage()
    {
        std::setlocale(LC_ALL, "C");
        QLocale::setDefault(QLocale::c());
    }
    UserLanguage(const UserLanguage&) = delete;
    UserLanguage& operator=(const UserLanguage&) = delete;

    /** Whether the C library has it; Qt brings all languages along. */
    bool isInstalled() const { return m_isInstalled; }

    static QList<QByteArray> tested() { return {"C", "de_DE", "fr_FR", "tr_TR", "ar_EG", "hi_IN"}; }

private:
    bool m_isInstalled = false;
};
