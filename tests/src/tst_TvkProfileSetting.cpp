#include <TvkProfileSetting.h>

#include "tests/support/PlainExtension.h"
#include "tests/support/TestMain.h"

/** Which extensions a setting controls, and with which settings of their own. */
class tst_TvkProfileSetting : public QObject
{
    Q_OBJECT

private slots:
    void aSettingControlsNothingAtFirst();
    void controlledExtensionsAreOrderedByAddress();
    void controllingAgainReplacesTheSetting();
    void aReleasedExtensionIsNoLongerControlled();
};

void tst_TvkProfileSetting::aSettingControlsNothingAtFirst()
{
    QVERIFY(TvkProfileSetting().getControlledExtensions().empty());
}

void tst_TvkProfileSetting::controlledExtensionsAreOrderedByAddress()
{
    PlainExtension extensions[3];
    TvkProfileSetting setting;
    setting.control(&extensions[1]);
    setting.control(&extensions[2]);
    setting.control(&extensions[0]);
    std::vector<TvkExtension*> keys;
    for (const auto& [extension, own] : setting.getControlledExtensions())
        keys.push_back(extension);
    QCOMPARE(keys, (std::vector<TvkExtension*>{&extensions[0], &extensions[1], &extensions[2]}));
}

void tst_TvkProfileSetting::controllingAgainReplacesTheSetting()
{
    PlainExtension extension;
    TvkProfileSetting setting;
    TvkProfileSetting own;
    setting.control(&extension);
    QCOMPARE(setting.getControlledExtensions().at(&extension), nullptr);
    setting.control(&extension, &own);
    QCOMPARE(setting.getControlledExtensions().at(&extension), &own);
    QCOMPARE(setting.getControlledExtensions().size(), std::size_t(1));
}

void tst_TvkProfileSetting::aReleasedExtensionIsNoLongerControlled()
{
    PlainExtension extension;
    PlainExtension other;
    TvkProfileSetting setting;
    setting.control(&extension);
    setting.release(&other);
    QCOMPARE(setting.getControlledExtensions().size(), std::size_t(1));
    setting.release(&extension);
    QVERIFY(setting.getControlledExtensions().empty());
}

TAVRIK_TEST_MAIN(tst_TvkProfileSetting)
#include "tst_TvkProfileSetting.moc"
