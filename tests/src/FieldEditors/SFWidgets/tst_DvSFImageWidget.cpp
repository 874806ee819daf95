#include "tests/support/EditorRig.h"
#include "tests/support/ImageFields.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/SceneTypes.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFImageLabel.h"
#include "FieldEditors/SFWidgets/DvSFImageWidget.h"

#include <QPushButton>

class tst_DvSFImageWidget : public QObject
{
    Q_OBJECT

private:
    static QWidget* box(const EditorRig& rig) { return rig.find<QWidget>("m_imageBox"); }

    static QImage picture(const EditorRig& rig)
    {
        return rig.find<DvSFImageLabel>("pixmapLabel")->pixmap(Qt::ReturnByValue).toImage();
    }

    static void show(const EditorRig& rig, int width, int height, int components)
    {
        setCountingImage(rig.node->sfImage, width, height, components);
        EditorRig::runSensors();
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void showsThePictureInABoxOfItsSize_data()
    {
        QTest::addColumn<int>("components");
        for (int components = 1; components <= 4; ++components)
            QTest::addRow("%d components", components) << components;
    }

    void showsThePictureInABoxOfItsSize()
    {
        QFETCH(int, components);
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        show(rig, 20, 12, components);
        QCOMPARE(box(rig)->size(), QSize(20, 12));
        QCOMPARE(picture(rig).size(), QSize(20, 12));
        QCOMPARE(qRed(picture(rig).pixel(0, 11)), 0); // the field's first row is at the bottom
    }

    void theBoxIsAtMost256WideAndHigh_data()
    {
        QTest::addColumn<QSize>("image");
        QTest::addColumn<QSize>("shown");
        QTest::newRow("wide and low") << QSize(1000, 10) << QSize(256, 10);
        QTest::newRow("narrow and high") << QSize(10, 1000) << QSize(10, 256);
        QTest::newRow("just so") << QSize(256, 256) << QSize(256, 256);
        QTest::newRow("huge") << QSize(4096, 4096) << QSize(256, 256);
        QTest::newRow("widest") << QSize(32767, 1) << QSize(256, 1);
    }

    void theBoxIsAtMost256WideAndHigh()
    {
        QFETCH(QSize, image);
        QFETCH(QSize, shown);
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        show(rig, image.width(), image.height(), 3);
        QCOMPARE(box(rig)->minimumSize(), shown);
        QCOMPARE(box(rig)->maximumSize(), shown);
        QVERIFY(!picture(rig).isNull());
    }

    void anEmptyImageShowsNothing()
    {
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        QCOMPARE(box(rig)->maximumSize(), QSize(0, 0));
        QVERIFY(picture(rig).isNull());
        show(rig, 8, 8, 3);
        show(rig, 0, 0, 0);
        QCOMPARE(box(rig)->maximumSize(), QSize(0, 0));
        QVERIFY(picture(rig).isNull());
    }

    void otherNumbersOfComponentsShowNothing()
    {
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        show(rig, 8, 8, 5);
        QVERIFY(picture(rig).isNull());
        show(rig, 8, 8, 4);
        QVERIFY(!picture(rig).isNull());
    }

    void anImageReplacedFromOutsideIsShown()
    {
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        show(rig, 4, 4, 1);
        QVERIFY(rig.field->set("2 1 3 0xff0000 0x0000ff"));
        EditorRig::runSensors();
        QCOMPARE(box(rig)->size(), QSize(2, 1));
        QCOMPARE(picture(rig).pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(picture(rig).pixelColor(1, 0), QColor(Qt::blue));
    }

    void pixelsChangedInPlaceAreShown()
    {
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        show(rig, 4, 4, 1);
        SbVec2s size;
        int components = 0;
        rig.node->sfImage.startEditing(size, components)[0] = 200;
        rig.node->sfImage.finishEditing();
        EditorRig::runSensors();
        QCOMPARE(qRed(picture(rig).pixel(0, 3)), 200);
    }

    void anotherFieldsImageTakesItsPlace()
    {
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        show(rig, 4, 4, 1);
        auto* const second = new SoEveryField;
        second->ref();
        setCountingImage(second->sfImage, 7, 5, 3);
        rig.edit(second->sfImage);
        QCOMPARE(box(rig)->maximumSize(), QSize(7, 5));
        QCOMPARE(picture(rig).size(), QSize(7, 5));
        second->unref();
    }

    void theFieldIsNeverWritten()
    {
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        show(rig, 4, 4, 3);
        const QString before = rig.text();
        NotificationCounter notifications(*rig.field);
        QTest::mouseClick(box(rig), Qt::LeftButton);
        QTest::keyClick(box(rig), Qt::Key_Return);
        editor.applyChanges();
        editor.setCommandValue();
        editor.setFocusLeaveEvent();
        editor.refresh();
        rig.leave();
        editor.deactivate();
        QCOMPARE(notifications.take(), 0);
        QCOMPARE(rig.text(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void theDefaultIsTheNodesOwn_data() { addTypeRows(nodeTypesWith<SoSFImage>()); }
    void theDefaultIsTheNodesOwn()
    {
        auto* const node = newOfRowType<SoNode>();
        node->ref();
        SoSFImage& image = *fieldsOf<SoSFImage>(*node).first();
        DvSFImageWidget editor;
        EditorRig rig(editor, "sfImage");
        rig.edit(image);
        const QString fresh = rig.text();
        setCountingImage(image, 4, 4, 3);
        QTest::mouseClick(rig.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        EditorRig::runSensors();
        QCOMPARE(rig.text(), fresh); // "0 0 1" for one of them
        QCOMPARE(box(rig)->maximumSize(), QSize(0, 0));
        QVERIFY(picture(rig).isNull());
        QCOMPARE(rig.host.services.count(), 1);
        node->unref();
    }
};

TAVRIK_TEST_MAIN(tst_DvSFImageWidget)
#include "tst_DvSFImageWidget.moc"
