#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QtTest>

/** A slider's thumb in the user's hand: pressed, moved with the button held, released. */
class ThumbDrag
{
public:
    explicit ThumbDrag(QSlider* slider) : m_slider(slider), m_at(thumb().center()) {}

    void press() const { QTest::mousePress(m_slider, Qt::LeftButton, {}, m_at); }

    /** By as many pixels; far enough, it is at an end. */
    void moveBy(int pixels)
    {
        m_at.rx() += pixels;
        // QTest moves the pointer without a button held.
        QMouseEvent event(QEvent::MouseMove, m_at, m_slider->mapToGlobal(m_at), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_slider, &event);
    }

    void release() const { QTest::mouseRelease(m_slider, Qt::LeftButton, {}, m_at); }

private:
    QRect thumb() const
    {
        QStyleOptionSlider option;
        option.initFrom(m_slider);
        option.orientation = m_slider->orientation();
        option.minimum = m_slider->minimum();
        option.maximum = m_slider->maximum();
        option.sliderPosition = m_slider->sliderPosition();
        option.sliderValue = m_slider->value();
        return m_slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                 QStyle::SC_SliderHandle, m_slider);
    }

    QSlider* m_slider; ///< not owned
    QPoint m_at;
};
