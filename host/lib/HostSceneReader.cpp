#include "lib/HostSceneReader.h"

#include "lib/HostText.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/lists/SbStringList.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QByteArrayList>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("HostScene", text);
}

/** A folder in front of Coin's search path for the life of this object. */
class SearchFolder
{
public:
    explicit SearchFolder(const QByteArray& folder)
    {
        const SbStringList& folders = SoInput::getDirectories();
        for (int i = 0; i < folders.getLength(); ++i)
            m_before << folders[i]->getString();
        SoInput::addDirectoryFirst(folder.constData());
    }
    ~SearchFolder()
    {
        // Coin takes away the last mention of a folder, which need not be the one added here.
        SoInput::clearDirectories();
        for (const QByteArray& folder : m_before)
            SoInput::addDirectoryLast(folder.constData());
    }
    SearchFolder(const SearchFolder&) = delete;
    SearchFolder& operator=(const SearchFolder&) = delete;

private:
    QByteArrayList m_before;
};

/** The handler of read errors for the life of this object. */
class ErrorHandler
{
public:
    ErrorHandler(SoErrorCB* handler, void* data)
        : previous(SoReadError::getHandlerCallback()), previousData(SoReadError::getHandlerData())
    {
        SoReadError::setHandlerCallback(handler, data);
        s_current = this;
    }
    ~ErrorHandler()
    {
        s_current = m_outer;
        SoReadError::setHandlerCallback(previous, previousData);
    }
    ErrorHandler(const ErrorHandler&) = delete;
    ErrorHandler& operator=(const ErrorHandler&) = delete;

    static const ErrorHandler* current() { return s_current; }

    SoErrorCB* const previous;
    void* const previousData;

private:
    static ErrorHandler* s_current;
    ErrorHandler* const m_outer = s_current;
};

ErrorHandler* ErrorHandler::s_current = nullptr;

/** Why the file cannot be one, before Coin is asked; empty when it can. */
QString obstacle(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tr("There is no file \"%1\".").arg(path);
    if (!info.isFile())
        return tr("\"%1\" is not a file.").arg(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("\"%1\" cannot be read: %2.").arg(path, file.errorString());
    return file.size() == 0 ? tr("\"%1\" is empty.").arg(path) : QString();
}

} // namespace

void HostSceneReader::complain(const SoError* error, void* reader)
{
    QString text = HostText::fromCoin(error->getDebugString()).simplified();
    const QString prefix = QStringLiteral("Coin read error: ");
    if (text.startsWith(prefix))
        text.remove(0, prefix.size());
    static_cast<HostSceneReader*>(reader)->m_complaints << text;
    const ErrorHandler* handler = ErrorHandler::current();
    if (handler && handler->previous)
        handler->previous(error, handler->previousData);
}

SoSeparator* HostSceneReader::read(const QString& path)
{
    m_error = obstacle(path);
    if (!m_error.isEmpty())
        return nullptr;
    SoSeparator* root = parse(path);
    if (!root) {
        m_error = tr("\"%1\" cannot be read as a scene.").arg(path);
        if (!m_complaints.isEmpty())
            m_error += QLatin1Char('\n') + m_complaints.join(QLatin1Char('\n'));
    }
    return root;
}

SoSeparator* HostSceneReader::parse(const QString& path)
{
    const QFileInfo info(path);
    const SearchFolder folder(QFile::encodeName(info.absolutePath()));
    const ErrorHandler handler(complain, this);
    SoInput input;
    if (!input.openFile(QFile::encodeName(info.absoluteFilePath()).constData()))
        return nullptr;
    return SoDB::readAll(&input);
}
