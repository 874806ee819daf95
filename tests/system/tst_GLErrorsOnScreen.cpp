#include "tests/support/TestMain.h"
#include "tests/system/SessionOnScreen.h"

#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCallback.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPlainTextEdit>

namespace {

/** Errors that a node of the scene makes in each frame; a driver may note only the first. */
struct Mistakes
{
    bool badEnum = false;
    bool badValue = false;
    int frames = 0;
    QOpenGLContext* context = nullptr; ///< of the frames
    QSurface* surface = nullptr;
};

void draw(void* data, SoAction* action)
{
    if (!action->isOfType(SoGLRenderAction::getClassTypeId()))
        return;
    auto& mistakes = *static_cast<Mistakes*>(data);
    mistakes.context = QOpenGLContext::currentContext();
    mistakes.surface = mistakes.context->surface();
    ++mistakes.frames;
    QOpenGLFunctions& gl = *mistakes.context->functions();
    if (mistakes.badEnum)
        gl.glEnable(0xBAD);
    if (mistakes.badValue)
        gl.glLineWidth(-1);
}

} // namespace

/** An error of OpenGL on its way from a node of the scene into the console. */
class tst_GLErrorsOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_session.finish(); }

    void aFrameWithoutErrorsSaysNothing();
    void anErrorInEveryFrameIsSaidOnce();
    void itIsSaidAgainAfterAFrameWithoutIt();
    void anotherErrorIsSaidByItsName();
    void anErrorFromBeforeTheFrameIsNotItsOwn();

private:
    /** Has the scene drawn anew. */
    void drawFrame();
    QStringList said() const
    {
        QTest::qWait(50);
        auto* const output = m_session.window().findChild<QPlainTextEdit*>("m_consoleOutput");
        return output->toPlainText().split('\n').filter("OpenGL");
    }

    SessionOnScreen m_session;
    Mistakes m_mistakes;
    SoCallback* m_node = nullptr; ///< the scene's
};

void tst_GLErrorsOnScreen::init()
{
    m_session.start();
    m_mistakes = {};
    m_node = new SoCallback;
    m_node->setCallback(draw, &m_mistakes);
    m_session.window().scene().root()->addChild(m_node);
    drawFrame();
}

void tst_GLErrorsOnScreen::drawFrame()
{
    const int frames = m_mistakes.frames;
    m_node->touch();
    QTRY_VERIFY(m_mistakes.frames > frames);
}

void tst_GLErrorsOnScreen::aFrameWithoutErrorsSaysNothing()
{
    drawFrame();
    QCOMPARE(said(), QStringList());
}

void tst_GLErrorsOnScreen::anErrorInEveryFrameIsSaidOnce()
{
    m_mistakes.badEnum = true;
    for (int i = 0; i < 3; ++i)
        drawFrame();
    QCOMPARE(said(), QStringList{"OpenGL error after a frame: GL_INVALID_ENUM"});
}

void tst_GLErrorsOnScreen::itIsSaidAgainAfterAFrameWithoutIt()
{
    m_mistakes.badEnum = true;
    drawFrame();
    m_mistakes.badEnum = false;
    drawFrame();
    QCOMPARE(said().size(), 1);
    m_mistakes.badEnum = true;
    drawFrame();
    QCOMPARE(said().size(), 2);
}

void tst_GLErrorsOnScreen::anotherErrorIsSaidByItsName()
{
    m_mistakes.badEnum = true;
    drawFrame();
    m_mistakes.badEnum = false;
    m_mistakes.badValue = true;
    drawFrame();
    QCOMPARE(said(), (QStringList{"OpenGL error after a frame: GL_INVALID_ENUM",
                                  "OpenGL error after a frame: GL_INVALID_VALUE"}));
}

void tst_GLErrorsOnScreen::anErrorFromBeforeTheFrameIsNotItsOwn()
{
    QVERIFY(m_mistakes.context->makeCurrent(m_mistakes.surface));
    m_mistakes.context->functions()->glEnable(0xBAD);
    drawFrame();
    QCOMPARE(said(), QStringList());
}

TAVRIK_TEST_MAIN(tst_GLErrorsOnScreen)
#include "tst_GLErrorsOnScreen.moc"
