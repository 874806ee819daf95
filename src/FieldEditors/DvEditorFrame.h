#pragma once

#include <QFrame>

/** The top widget of a field editor; tells the editor when the user's language has changed. */
class DvEditorFrame final : public QFrame
{
    Q_OBJECT

public:
    using QFrame::QFrame;

signals:
    void languageChanged();

protected:
    void changeEvent(QEvent* event) override;
};
