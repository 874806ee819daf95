#include "tests/support/TestMain.h"

#include "FieldEditors/DvEnumEntries.h"

#include <Inventor/fields/SoSFBitMask.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoMaterialBinding.h>

class tst_DvEnumEntries : public QObject
{
    Q_OBJECT

private:
    /** All entries as one text. */
    static QString textOf(const SoSFEnum& field)
    {
        QStringList texts;
        for (const DvEnumEntry& entry : enumEntries(field))
            texts << QStringLiteral("%1=%2").arg(entry.name).arg(entry.value);
        return texts.join(QLatin1Char(' '));
    }

private slots:
    void theNamesComeInTheFieldsOrder()
    {
        auto* const style = new SoDrawStyle;
        style->ref();
        QCOMPARE(textOf(style->style), QStringLiteral("FILLED=0 LINES=1 POINTS=2 INVISIBLE=3"));
        style->unref();
    }

    void namesForSeveralBitsAreAmongThem()
    {
        auto* const cone = new SoCone;
        cone->ref();
        QCOMPARE(textOf(cone->parts), QStringLiteral("SIDES=1 BOTTOM=2 ALL=3"));
        cone->unref();
    }

    void severalNamesForOneValueAreAllThere()
    {
        auto* const binding = new SoMaterialBinding;
        binding->ref();
        int overall = 0;
        for (const DvEnumEntry& entry : enumEntries(binding->value))
            overall += entry.value == SoMaterialBinding::OVERALL;
        QVERIFY(overall > 1);
        binding->unref();
    }

    void aFieldWithoutNamesHasNone()
    {
        QVERIFY(enumEntries(SoSFEnum()).empty());
        QVERIFY(enumEntries(SoSFBitMask()).empty());
    }

    void aNameIsReadAsUtf8OrElseAsLatin1()
    {
        const int values[] = {-1, 2};
        const SbName names[] = {"gr\xc3\xbcn", "gr\xfcn"};
        SoSFEnum field;
        field.setEnums(2, values, names);
        QCOMPARE(textOf(field), QStringLiteral(u"gr\u00fcn=-1 gr\u00fcn=2"));
    }
};

TAVRIK_TEST_MAIN(tst_DvEnumEntries)
#include "tst_DvEnumEntries.moc"
