#pragma once

#include <TvkExtension.h>

#include <QPointer>

class QComboBox;
class QToolBar;

/** A tool bar with a list of the host's profiles; what is chosen there becomes the active one. */
class TvkProfileSelectorExtension final : public TvkExtension
{
    Q_OBJECT

public:
    TvkProfileSelectorExtension();
    ~TvkProfileSelectorExtension() override;

    /** Lists the profiles as they are now; a later change is seen at the next activation. */
    void activate() override;
    void deactivate() override;
    void hide() override;
    void createWidgets() override;
    void show() override;
    void releaseWidgets() override;

public slots:
    /** Makes the profile at a place of the host's list the active one; none beyond its end. */
    void s_currentIndexChanged(int index);

private:
    void fill();
    void follow(bool following);

    // Null until createWidgets() and after releaseWidgets().
    QPointer<QToolBar> toolBar;
    QPointer<QComboBox> profileCombo;
};
