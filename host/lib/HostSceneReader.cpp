#include "lib/HostSceneReader.h"

#include "lib/HostSceneDepth.h"
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

#include <cstdint>

namespace {

/** Bytes of stack that reading may take; a thread has eight million by habit. */
constexpr std::uintptr_t StackForReading = 4000000;

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

std::uintptr_t stackPosition()
{
    // NOLINTNEXTLINE(*-reinterpret-cast): a position in memory, as a number to measure by
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

/**
 * Ends the reading of nodes within nodes before it exhausts the stack: each begins with a name, in
 * every format that Coin reads, compressed ones and files that include themselves among them.
 */
class BoundedInput : public SoInput
{
public:
    bool isExhausted() const { return m_isExhausted; }

    using SoInput::read;
    SbBool read(SbName& name, SbBool validIdent) override
    {
        m_isExhausted = m_isExhausted || m_start - stackPosition() > StackForReading;
        return !m_isExhausted && SoInput::read(name, validIdent);
    }

private:
    const std::uintptr_t m_start = stackPosition();
    bool m_isExhausted = false;
};

QString tooDeep(const QString& path)
{
    return tr("\"%1\" is nested too deeply: at most %2 levels can be shown.")
        .arg(path, QString::number(HostSceneDepth::Limit));
}

/** Why the scene cannot be walked; empty when it can. */
QString excess(SoSeparator& root, const QString& path)
{
    const HostSceneDepth depth(root);
    if (depth.isCyclic())
        return tr("\"%1\" cannot be shown: a node in it contains itself.").arg(path);
    return depth.levels() > HostSceneDepth::Limit ? tooDeep(path) : QString();
}

/** The one separator that a file should hold, else one around its nodes. */
SoSeparator* rootOf(SoSeparator& nodes)
{
    SoNode* const only = nodes.getNumChildren() == 1 ? nodes.getChild(0) : nullptr;
    const bool isRoot = only && only->isOfType(SoSeparator::getClassTypeId());
    return isRoot ? static_cast<SoSeparator*>(only) : &nodes;
}

/**
 * As SoDB::readAll() does, but that takes anything that begins no node for the end of the file,
 * most often in silence, and throws it away. Referenced zero times; null where there was an error.
 */
SoSeparator* readNodes(SoInput& input)
{
    auto* nodes = new SoSeparator;
    nodes->ref();
    SoNode* node = nullptr;
    SbBool isRead = SoDB::read(&input, node);
    for (; isRead && node; isRead = SoDB::read(&input, node)) {
        nodes->addChild(node);
        node = nullptr;
    }
    SoSeparator* const root = rootOf(*nodes);
    root->ref();
    nodes->unref();
    if (isRead)
        root->unrefNoDelete();
    else
        root->unref();
    return isRead ? root : nullptr;
}

/** Lets go of a scene that nobody wants, however deep it is. */
void drop(SoSeparator& root)
{
    root.ref();
    HostSceneDepth(root).dismantle();
    root.unref();
}

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
    if (!root && m_error.isEmpty())
        m_error = tr("\"%1\" cannot be read as a scene.").arg(path);
    if (!root && !m_complaints.isEmpty())
        m_error += QLatin1Char('\n') + m_complaints.join(QLatin1Char('\n'));
    return root;
}

SoSeparator* HostSceneReader::parse(const QString& path)
{
    const QFileInfo info(path);
    const SearchFolder folder(QFile::encodeName(info.absolutePath()));
    const ErrorHandler handler(complain, this);
    BoundedInput input;
    if (!input.openFile(QFile::encodeName(info.absoluteFilePath()).constData()))
        return nullptr;
    SoSeparator* root = readNodes(input);
    if (input.isExhausted()) {
        m_complaints.clear(); // of a reader that was stopped: they say nothing about the file
        m_error = tooDeep(path);
    } else if (root) {
        m_error = excess(*root, path);
        noteRest(input);
    }
    const bool isNothing = root && root->getNumChildren() == 0 && !m_complaints.isEmpty();
    if (root && (isNothing || !m_error.isEmpty())) {
        drop(*root);
        root = nullptr;
    }
    return root;
}

void HostSceneReader::noteRest(SoInput& input)
{
    char next = 0;
    if (!input.read(next))
        return;
    SbString place;
    input.getLocationString(place);
    m_complaints
        << tr("The rest of the file was not read. %1").arg(HostText::fromCoin(place).simplified());
}
