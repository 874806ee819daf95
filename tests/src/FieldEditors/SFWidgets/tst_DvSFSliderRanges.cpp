#include "tests/support/SliderEditors.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoComplexity.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPointLight.h>

/** The ranges that the six slider editors give to their sliders. */
class tst_DvSFSliderRanges : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void aRealFieldOfAnyNodeStartsFromZeroToTenAndGrows_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("float") << 0;
        QTest::newRow("double") << 1;
    }
    void aRealFieldOfAnyNodeStartsFromZeroToTenAndGrows()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        const auto& real = sliderOf<DvRealSlider>(*editor);
        QCOMPARE(real.minimum(), 0.0);
        QCOMPARE(real.maximum(), 10.0);
        QVERIFY(!real.isBounded());
        enterNumber(rig, QStringLiteral("25"));
        QCOMPARE(real.maximum(), 25.0);
        QCOMPARE(thumbOf(rig)->maximum(), 100);
        QCOMPARE(thumbOf(rig)->value(), 100);
        enterNumber(rig, QStringLiteral("-3"));
        QCOMPARE(real.minimum(), -3.0);
        QCOMPARE(rig.text(), QStringLiteral("-3"));
    }

    void anIntegerFieldStartsFromZeroToAHundredAndGrows_data()
    {
        QTest::addColumn<int>("kind");
        for (std::size_t kind = 2; kind < 6; ++kind)
            QTest::newRow(SliderEditors::all()[kind].name) << static_cast<int>(kind);
    }
    void anIntegerFieldStartsFromZeroToAHundredAndGrows()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        QCOMPARE(static_cast<qint64>(thumbOf(rig)->maximum()) - thumbOf(rig)->minimum(), 100LL);
        enterNumber(rig, QStringLiteral("4711"));
        QCOMPARE(static_cast<qint64>(thumbOf(rig)->maximum()) - thumbOf(rig)->minimum(), 4711LL);
        QCOMPARE(lineOf(rig)->text(), QStringLiteral("4711"));
    }

    void keepsTheShareRangeForEveryFieldOfThreeNodes_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("field");
        QTest::newRow("value") << "Complexity"
                               << "value";
        QTest::newRow("textureQuality") << "Complexity"
                                        << "textureQuality";
        QTest::newRow("intensity") << "DirectionalLight"
                                   << "intensity";
    }
    void keepsTheShareRangeForEveryFieldOfThreeNodes()
    {
        QFETCH(QString, node);
        QFETCH(QString, field);
        DvSFFloatWidget editor;
        EditorRig rig(editor, "sfFloat");
        auto* const container =
            static_cast<SoNode*>(SoType::fromName(node.toLatin1().constData()).createInstance());
        container->ref();
        rig.edit(*container->getField(field.toLatin1().constData()));
        const auto& real = sliderOf<DvRealSlider>(editor);
        QCOMPARE(real.minimum(), 0.0);
        QCOMPARE(real.maximum(), 1.0);
        QVERIFY(real.isBounded());
        enterNumber(rig, QStringLiteral("2"));
        QCOMPARE(rig.text(), QStringLiteral("1"));
        rig.leave();
        editor.deactivate();
        rig.host.services.commands.clear();
        container->unref();
    }

    void keepsTheShareRangeForRealFieldsOfAnyNameInAMaterial()
    {
        // The node counts, not the name of the field.
        OwnedNode<SoMaterial> material;
        SoSFFloat single;
        SoSFDouble precise;
        DvSFFloatWidget floatEditor;
        DvSFDoubleWidget doubleEditor;
        single.setContainer(material.node);
        precise.setContainer(material.node);
        floatEditor.setField(&single);
        doubleEditor.setField(&precise);
        QCOMPARE(sliderOf<DvRealSlider>(floatEditor).maximum(), 1.0);
        QVERIFY(sliderOf<DvRealSlider>(floatEditor).isBounded());
        QCOMPARE(sliderOf<DvRealSlider>(doubleEditor).maximum(), 1.0);
        QVERIFY(sliderOf<DvRealSlider>(doubleEditor).isBounded());
    }

    void anIntegerFieldOfAMaterialHasTheRangeOfAnyOther()
    {
        OwnedNode<SoMaterial> material;
        SoSFInt32 whole;
        DvSFInt32Widget editor;
        whole.setContainer(material.node);
        editor.setField(&whole);
        QCOMPARE(sliderOf<DvIntSlider>(editor).maximum(), 100);
        QVERIFY(!sliderOf<DvIntSlider>(editor).isBounded());
    }

    void anotherLightHasNoStrictRange()
    {
        OwnedNode<SoPointLight> light;
        DvSFFloatWidget editor;
        EditorRig rig(editor, "sfFloat");
        rig.edit(light.node->intensity);
        QCOMPARE(sliderOf<DvRealSlider>(editor).maximum(), 10.0);
        QVERIFY(!sliderOf<DvRealSlider>(editor).isBounded());
        editor.deactivate();
    }

    void keepsTheRangeStrictWhenAComplexityStretchesIt()
    {
        OwnedNode<SoComplexity> complexity;
        complexity.node->value.setValue(3.5F);
        DvSFFloatWidget editor;
        EditorRig rig(editor, "sfFloat");
        rig.edit(complexity.node->value);
        const auto& real = sliderOf<DvRealSlider>(editor);
        QCOMPARE(real.minimum(), 0.0);
        QCOMPARE(real.maximum(), 3.5);
        QVERIFY(real.isBounded());
        QCOMPARE(lineOf(rig)->text(), QStringLiteral("3.500000"));
        QCOMPARE(thumbOf(rig)->value(), 100);
        enterNumber(rig, QStringLiteral("5"));
        QCOMPARE(complexity.node->value.getValue(), 3.5F);
        editor.deactivate();
        rig.host.services.commands.clear();
    }

    void aStrictRangeStretchesDownwardsToo()
    {
        OwnedNode<SoComplexity> complexity;
        complexity.node->value.setValue(-2.0F);
        DvSFFloatWidget editor;
        EditorRig rig(editor, "sfFloat");
        rig.edit(complexity.node->value);
        QCOMPARE(sliderOf<DvRealSlider>(editor).minimum(), -2.0);
        QCOMPARE(sliderOf<DvRealSlider>(editor).maximum(), 1.0);
        QCOMPARE(thumbOf(rig)->value(), 0);
        editor.deactivate();
    }

    void theRangeStartsAnewWithTheNextField()
    {
        OwnedNode<SoComplexity> complexity;
        complexity.node->value.setValue(3.5F);
        DvSFFloatWidget editor;
        EditorRig rig(editor, "sfFloat");
        enterNumber(rig, QStringLiteral("5000"));
        rig.edit(complexity.node->value);
        QCOMPARE(sliderOf<DvRealSlider>(editor).maximum(), 3.5);
        rig.edit(complexity.node->textureQuality);
        QCOMPARE(sliderOf<DvRealSlider>(editor).maximum(), 1.0);
        rig.edit(rig.node->sfFloat);
        QCOMPARE(sliderOf<DvRealSlider>(editor).maximum(), 5000.0);
        rig.node->sfFloat.setValue(1.0F);
        rig.edit(rig.node->sfFloat);
        QCOMPARE(sliderOf<DvRealSlider>(editor).maximum(), 10.0);
        enterNumber(rig, QStringLiteral("7")); // the validator has not kept the strict range
        QCOMPARE(rig.text(), QStringLiteral("7"));
    }
};

TAVRIK_TEST_MAIN(tst_DvSFSliderRanges)
#include "tst_DvSFSliderRanges.moc"
