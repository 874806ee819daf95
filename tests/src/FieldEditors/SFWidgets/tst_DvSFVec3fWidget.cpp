#include "tests/support/LineChecks.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <clocale>

class tst_DvSFVec3fWidget : public QObject
{
    Q_OBJECT

private:
    static QLineEdit* line(const EditorRig& rig, int i)
    {
        return rig.find<QLineEdit>("SFVec3fLine", i);
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void handlesSFVec3fAndSaysSo()
    {
        DvSFVec3fWidget editor;
        QCOMPARE(editor.objectName(), QStringLiteral("DvSFVec3fWidget"));
        QVERIFY(editor.getHandledType() == SoSFVec3f::getClassTypeId());
    }

    void showsThreeLabelledLines()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        const QStringList texts = {"<p>x</p>", "<p>y</p>", "<p>z</p>"};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(rig.find<QLabel>("SFVec3fLabel", i)->text(), texts.at(i));
            QVERIFY(line(rig, i)->height() >= 16);
        }
        QCOMPARE(line(rig, 2)->text(), QStringLiteral("3"));
        auto* const layout = editor.getWidget()->findChild<QGridLayout*>("SFVec3fLayout");
        QCOMPARE(layout->verticalSpacing(), 4);
        QCOMPARE(layout->horizontalSpacing(), 20);
        QCOMPARE(layout->contentsMargins(), QMargins(2, 2, 2, 2));
    }

    void everyLineTakesSinglePrecisionNumbersWithSixDecimals()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        LineChecks::takeSinglePrecisionNumbers(rig, "SFVec3fLine", 3);
    }

    void typingAndReturnCommitsOnce()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        EditorRig::type(line(rig, 1), "2.5");
        QVERIFY(editor.hasPendingEdit());
        QTest::keyClick(line(rig, 1), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("1 2.5 3"));
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(!editor.hasPendingEdit());
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 1);
    }

    void leavingAnEditedLineCommitsOnce()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        LineChecks::leavingCommitsOnce(rig, line(rig, 0), "-7", "-7 2 3");
    }

    void leavingAnUneditedLineCommitsNothing()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        for (int i = 0; i < 3; ++i)
            QTest::mouseClick(line(rig, i), Qt::LeftButton);
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
        QCOMPARE(rig.text(), QStringLiteral("1 2 3"));
    }

    void aSmallComponentIsShownInExponentForm()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        rig.node->sfVec3f.setValue(1e-7F, 123456.789F, 0.0F);
        EditorRig::runSensors();
        QCOMPARE(line(rig, 0)->text(), QStringLiteral("1e-07"));
        QCOMPARE(line(rig, 1)->text(), QStringLiteral("123457"));
    }

    void aComponentOfNineDigitsKeepsItsBitsWhenAnotherIsEdited()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        const float exact = 1.23456788F;
        rig.node->sfVec3f.setValue(exact, 2.0F, 3.0F);
        EditorRig::runSensors();
        QCOMPARE(line(rig, 0)->text(), QStringLiteral("1.23457"));
        EditorRig::type(line(rig, 2), "9");
        QTest::keyClick(line(rig, 2), Qt::Key_Return);
        QVERIFY(rig.node->sfVec3f.getValue()[0] == exact);
        QCOMPARE(rig.node->sfVec3f.getValue()[2], 9.0F);
    }

    void anUnshownOutsideChangeOfAnotherComponentSurvivesACommit()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        EditorRig::type(line(rig, 0), "5");
        rig.node->sfVec3f.setValue(1.0F, 42.0F, 3.0F); // the sensors have not run yet
        QTest::keyClick(line(rig, 0), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("5 42 3"));
    }

    void typingTheShownTextGivesWhatTheTextSays()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        rig.node->sfVec3f.setValue(1.23456788F, 2.0F, 3.0F);
        EditorRig::runSensors();
        EditorRig::type(line(rig, 0), "1.23457");
        QTest::keyClick(line(rig, 0), Qt::Key_Return);
        QCOMPARE(rig.node->sfVec3f.getValue()[0], 1.23457F);
    }

    void textThatIsNoNumberCountsAsZero()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        LineChecks::noNumberCountsAsZero(rig, line(rig, 1), "1 0 3");
    }

    void leavingAHalfTypedNumberShowsTheFieldAgain()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        LineChecks::halfANumberIsTakenBack(rig, line(rig, 1));
    }

    void escapeShowsTheFieldAgain()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        EditorRig::type(line(rig, 1), "99");
        QTest::keyClick(line(rig, 1), Qt::Key_Escape);
        QCOMPARE(line(rig, 1)->text(), QStringLiteral("2"));
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void keepsTheNewValueWhenUndone()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        LineChecks::keepsTheNewValueWhenUndone(rig, line(rig, 0), "8");
    }

    void theCursorStandsAtTheStartAfterARefresh()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        rig.node->sfVec3f.setValue(123.0F, 456.0F, 789.0F);
        EditorRig::runSensors();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(line(rig, i)->cursorPosition(), 0);
    }

    void theSameKeysGiveTheSameValueInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* name : {"C", "de_DE", "fr_FR", "tr_TR", "ar_EG", "hi_IN"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void theSameKeysGiveTheSameValueInEveryLanguage()
    {
        QFETCH(QString, language);
        const QByteArray system = language == "C" ? "C" : language.toLatin1() + ".UTF-8";
        QVERIFY2(std::setlocale(LC_ALL, system.constData()), "the locale is not installed");
        QLocale::setDefault(QLocale(language));
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        EditorRig::type(line(rig, 0), "0.5");
        QTest::keyClick(line(rig, 0), Qt::Key_Return);
        EditorRig::type(line(rig, 1), "1,25");
        QTest::keyClick(line(rig, 1), Qt::Key_Return);
        EditorRig::type(line(rig, 2), "1e3");
        QTest::keyClick(line(rig, 2), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("0.5 1.25 1000"));
        EditorRig::runSensors();
        QCOMPARE(line(rig, 0)->text(), QStringLiteral("0.5"));
        std::setlocale(LC_ALL, "C");
        QLocale::setDefault(QLocale::c());
    }
};

TAVRIK_TEST_MAIN(tst_DvSFVec3fWidget)
#include "tst_DvSFVec3fWidget.moc"
