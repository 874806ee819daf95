#pragma once

#include <QFrame>

/**
 * The top widget of a field editor; tells the editor when the user comes to it, and when the
 * user's language has changed.
 */
class DvEditorFrame final : public QFrame
{
    Q_OBJECT

public:
    using QFrame::QFrame;

signals:
    void languageChanged();
    /** The mouse has come into the frame. */
    void entered();

protected:
    void changeEvent(QEvent* event) override;
    void enterEvent(QEvent* event) override;
};
