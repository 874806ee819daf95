#include "Console/StdStreamRedirector.h"

#include "tests/support/TestMain.h"

#include <sstream>
#include <thread>

namespace {

/** What a redirector's callback is told, as `text (count)`. */
struct Heard
{
    QStringList texts;

    static void hear(const char* text, std::int64_t count, void* data)
    {
        static_cast<Heard*>(data)->texts
            << QStringLiteral("%1 (%2)").arg(QString::fromLatin1(text)).arg(count);
    }

    StdStreamRedirector::Owner listenTo(std::ostream& stream)
    {
        return StdStreamRedirector::redirect(stream, &Heard::hear, this);
    }
};

} // namespace

/** A stand-in for a stream's buffer. */
class tst_StdStreamRedirector : public QObject
{
    Q_OBJECT

private:
    Heard m_heard;
    std::ostringstream m_stream;

private slots:
    void init()
    {
        m_heard.texts.clear();
        m_stream.str({});
        m_stream.clear();
    }

    void keepsACountOfOneForALineWrittenCharacterByCharacter()
    {
        const auto owner = m_heard.listenTo(m_stream);
        for (const char character : {'h', 'e', 'y'})
            m_stream.put(character);
        QCOMPARE(m_heard.texts, QStringList());
        m_stream.put('\n');
        QCOMPARE(m_heard.texts, QStringList{"hey (1)"});
        m_stream.put('\n');
        QCOMPARE(m_heard.texts, QStringList({"hey (1)", " (1)"}));
    }

    void aRunIsHeardAtOnceWithItsLineEndsAndItsLength()
    {
        const auto owner = m_heard.listenTo(m_stream);
        m_stream << "two\nlines\n";
        QCOMPARE(m_heard.texts, QStringList{"two\nlines\n (10)"});
    }

    void aRunEndsWithItsCountWhereNoZeroFollows()
    {
        const auto owner = m_heard.listenTo(m_stream);
        const char characters[] = {'a', 'b', 'c'};
        m_stream.write(characters, 2);
        m_stream << 42;
        QCOMPARE(m_heard.texts, QStringList({"ab (2)", "42 (2)"}));
    }

    void keepsTheOrderOfRunsBeforeThatOfSingleCharacters()
    {
        const auto owner = m_heard.listenTo(m_stream);
        m_stream << 'a' << "bc" << std::endl;
        QCOMPARE(m_heard.texts, QStringList({"bc (2)", "a (1)"}));
    }

    void keepsAnEmptyLineAfterARunThatEndlEnds()
    {
        const auto owner = m_heard.listenTo(m_stream);
        m_stream << "abc" << std::endl;
        QCOMPARE(m_heard.texts, QStringList({"abc (3)", " (1)"}));
    }

    void theWriterIsToldThatEverythingWasTaken()
    {
        const auto owner = m_heard.listenTo(m_stream);
        std::streambuf* const buffer = m_stream.rdbuf();
        QCOMPARE(int(buffer->sputc('x')), int('x'));
        QCOMPARE(int(buffer->sputc('\xff')), 0xFF);
        QCOMPARE(buffer->sputn("yz", 2), std::streamsize(2));
        QCOMPARE(buffer->pubsync(), 0);
        QVERIFY(m_stream.good());
    }

    void theEndOfAFileIsNoCharacterAndAnswersZero()
    {
        struct Opened : std::streambuf
        {
            using std::streambuf::overflow;
        };
        const auto owner = m_heard.listenTo(m_stream);
        const int_type end = std::char_traits<char>::eof();
        const auto overflow =
            static_cast<int_type (std::streambuf::*)(int_type)>(&Opened::overflow);
        QCOMPARE((m_stream.rdbuf()->*overflow)(end), 0);
        m_stream.put('\n');
        QCOMPARE(m_heard.texts, QStringList{" (1)"});
    }

    void theFormerBufferIsPutBackAndTheUnfinishedLineDropped()
    {
        std::streambuf* const former = m_stream.std::ios::rdbuf();
        {
            const auto owner = m_heard.listenTo(m_stream);
            QVERIFY(m_stream.std::ios::rdbuf() != former);
            m_stream.put('x');
        }
        QCOMPARE(m_stream.std::ios::rdbuf(), former);
        const auto again = m_heard.listenTo(m_stream);
        m_stream.put('\n');
        QCOMPARE(m_heard.texts, QStringList{" (1)"});
    }

    void theFormerBufferIsPutBackOverOneThatCameLater()
    {
        std::ostringstream file;
        std::ostringstream visitor;
        std::ostream stream(file.rdbuf());
        auto owner = m_heard.listenTo(stream);
        std::streambuf* const ours = stream.rdbuf(visitor.rdbuf());
        owner.reset();
        QCOMPARE(stream.rdbuf(), static_cast<std::streambuf*>(file.rdbuf()));
        // The visitor puts back what it had found, which nobody listens to any more.
        stream.rdbuf(ours);
        stream << "text" << '!' << std::flush;
        QCOMPARE(file.str(), std::string("text!"));
        QCOMPARE(m_heard.texts, QStringList());
        QVERIFY(stream.good());
    }

    void listeningAboveARetiredOneGoesRoundInNoCircle()
    {
        std::ostringstream file;
        std::ostream stream(file.rdbuf());
        auto owner = m_heard.listenTo(stream);
        std::streambuf* const retired = stream.rdbuf();
        owner.reset();
        stream.rdbuf(retired);
        owner = m_heard.listenTo(stream);
        stream << "heard";
        owner.reset();
        QCOMPARE(stream.rdbuf(), retired);
        stream << "written" << '!';
        QCOMPARE(file.str(), std::string("written!"));
        QCOMPARE(m_heard.texts, QStringList{"heard (5)"});
    }

    void listeningAThousandTimesUsesOneBuffer()
    {
        auto owner = m_heard.listenTo(m_stream);
        std::streambuf* const first = m_stream.std::ios::rdbuf();
        for (int i = 0; i < 1000; ++i) {
            owner.reset();
            owner = m_heard.listenTo(m_stream);
            QCOMPARE(m_stream.std::ios::rdbuf(), first);
        }
    }

    void eachThreadFinishesItsOwnLine()
    {
        const auto owner = m_heard.listenTo(m_stream);
        std::streambuf* const buffer = m_stream.std::ios::rdbuf();
        buffer->sputc('a');
        std::thread([buffer] {
            buffer->sputc('b');
            buffer->sputc('\n');
        }).join();
        buffer->sputc('\n');
        QCOMPARE(m_heard.texts, QStringList({"b (1)", "a (1)"}));
    }

    void aThreadThatComesLateWritesIntoTheFormerBuffer()
    {
        auto owner = m_heard.listenTo(m_stream);
        std::streambuf* const buffer = m_stream.std::ios::rdbuf();
        owner.reset();
        std::thread([buffer] {
            buffer->sputc('x');
            buffer->sputn("yz", 2);
        }).join();
        QCOMPARE(m_stream.str(), std::string("xyz"));
        QCOMPARE(m_heard.texts, QStringList());
    }

private:
    using int_type = std::streambuf::int_type;
};

TAVRIK_TEST_MAIN(tst_StdStreamRedirector)
#include "tst_StdStreamRedirector.moc"
