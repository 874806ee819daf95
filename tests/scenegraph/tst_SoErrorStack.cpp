#include "scenegraph/SoErrorStack.h"

#include "scenegraph/SoGLError.h"

#include "tests/support/ReportLog.h"
#include "tests/support/TestMain.h"

namespace {

struct Received
{
    QStringList texts;
    SoType type;
};

void receive(const SoError* error, void* data)
{
    auto* received = static_cast<Received*>(data);
    received->texts << QString::fromUtf8(error->getDebugString().getString());
    received->type = error->getTypeId();
}

/** One error class through its static operations, so that both run through the same tests. */
struct ErrorClass
{
    SoType (*type)();
    void (*setHandler)(SoErrorCB*, void*);
    SoErrorCB* (*handler)();
    void* (*data)();
    void (*post)(const char*, ...);
};

template <class Error>
ErrorClass errorClass()
{
    return {Error::getClassTypeId, Error::setHandlerCallback, Error::getHandlerCallback,
            Error::getHandlerData, Error::post};
}

} // namespace

Q_DECLARE_METATYPE(ErrorClass)

/** SoErrorStack and SoGLError: what they share, and what keeps them apart. */
class tst_SoErrorStack : public QObject
{
    Q_OBJECT

private slots:
    void hasATypeOfItsOwn_data() { bothClasses(); }
    void hasATypeOfItsOwn();
    void initialisingAgainKeepsTheType();
    void reachesItsOwnHandlerExactlyOnce_data() { bothClasses(); }
    void reachesItsOwnHandlerExactlyOnce();
    void goesToTheGeneralHandlerWithoutItsOwn_data() { bothClasses(); }
    void goesToTheGeneralHandlerWithoutItsOwn();
    void oneHandlerForAllClassesIsCalledOnce_data() { bothClasses(); }
    void oneHandlerForAllClassesIsCalledOnce();
    void aHandlerIsPutBackAsItWasRead_data() { bothClasses(); }
    void aHandlerIsPutBackAsItWasRead();
    void aReportWithNoHandlerAtAllIsDropped_data() { bothClasses(); }
    void aReportWithNoHandlerAtAllIsDropped();
    void theTwoClassesHaveSeparateHandlers();

private:
    static void bothClasses();
};

void tst_SoErrorStack::bothClasses()
{
    QTest::addColumn<ErrorClass>("error");
    QTest::addColumn<QString>("name");
    QTest::newRow("SoErrorStack") << errorClass<SoErrorStack>() << "ErrorStack";
    QTest::newRow("SoGLError") << errorClass<SoGLError>() << "GLError";
}

void tst_SoErrorStack::hasATypeOfItsOwn()
{
    QFETCH(ErrorClass, error);
    QFETCH(QString, name);
    QVERIFY(error.type() == SoType::fromName(qPrintable(name)));
    QVERIFY(!error.type().isBad());
    QVERIFY(error.type().isDerivedFrom(SoError::getClassTypeId()));
    QVERIFY(error.type() != SoError::getClassTypeId());
}

void tst_SoErrorStack::initialisingAgainKeepsTheType()
{
    const SoType before = SoGLError::getClassTypeId();
    const int types = SoType::getNumTypes();
    SoTavrik::init();
    QVERIFY(SoGLError::getClassTypeId() == before);
    QCOMPARE(SoType::getNumTypes(), types);
}

void tst_SoErrorStack::reachesItsOwnHandlerExactlyOnce()
{
    QFETCH(ErrorClass, error);
    ReportLog general;
    Received own;
    error.setHandler(receive, &own);
    QVERIFY(error.handler() == &receive);
    QCOMPARE(error.data(), static_cast<void*>(&own));
    error.post("%s failed with 0x%x", "glBegin", 0x502);
    error.setHandler(nullptr, nullptr);
    QCOMPARE(own.texts, QStringList{"glBegin failed with 0x502"});
    QVERIFY(own.type == error.type());
    QCOMPARE(general.taken(), QStringList());
}

void tst_SoErrorStack::goesToTheGeneralHandlerWithoutItsOwn()
{
    QFETCH(ErrorClass, error);
    ReportLog general;
    QVERIFY(!error.handler());
    QVERIFY(!error.data());
    error.post("%d of %d", 1, 2);
    QCOMPARE(general.taken(), QStringList{"1 of 2"});
}

void tst_SoErrorStack::oneHandlerForAllClassesIsCalledOnce()
{
    QFETCH(ErrorClass, error);
    ReportLog general;
    error.setHandler(SoError::getHandlerCallback(), SoError::getHandlerData());
    error.post("once");
    error.setHandler(nullptr, nullptr);
    QCOMPARE(general.taken(), QStringList{"once"});
}

void tst_SoErrorStack::aHandlerIsPutBackAsItWasRead()
{
    QFETCH(ErrorClass, error);
    ReportLog general;
    SoErrorCB* const savedHandler = error.handler();
    void* const savedData = error.data();
    Received visitor;
    error.setHandler(receive, &visitor);
    error.setHandler(savedHandler, savedData);
    error.post("after the visit");
    QCOMPARE(general.taken(), QStringList{"after the visit"});
    {
        ReportLog later;
        error.post("to whoever listens now");
        QCOMPARE(later.taken(), QStringList{"to whoever listens now"});
    }
    QCOMPARE(visitor.texts, QStringList());
    QCOMPARE(general.taken(), QStringList());
}

void tst_SoErrorStack::aReportWithNoHandlerAtAllIsDropped()
{
    QFETCH(ErrorClass, error);
    ReportLog general;
    SoErrorCB* const handler = SoError::getHandlerCallback();
    SoError::setHandlerCallback(nullptr, nullptr);
    error.post("nobody hears this");
    SoError::setHandlerCallback(handler, &general);
    QCOMPARE(general.taken(), QStringList());
}

void tst_SoErrorStack::theTwoClassesHaveSeparateHandlers()
{
    Received stack;
    Received gl;
    SoErrorStack::setHandlerCallback(receive, &stack);
    SoGLError::setHandlerCallback(receive, &gl);
    SoErrorStack::post("a");
    SoGLError::post("b");
    SoErrorStack::setHandlerCallback(nullptr, nullptr);
    SoGLError::setHandlerCallback(nullptr, nullptr);
    QCOMPARE(stack.texts, QStringList{"a"});
    QCOMPARE(gl.texts, QStringList{"b"});
}

TAVRIK_TEST_MAIN(tst_SoErrorStack)
#include "tst_SoErrorStack.moc"
