#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

class QLayout;
class QWidget;

/**
 * The same form as another one, made of nothing but Qt's own widgets: what showing it would cost if
 * there were no editor. The twin's values are those that the original showed when it was copied.
 */
class BareTwin
{
public:
    /** Ends the program if the original holds a widget that no twin is known for. */
    explicit BareTwin(const QWidget& original);
    ~BareTwin();
    BareTwin(const BareTwin&) = delete;
    BareTwin& operator=(const BareTwin&) = delete;

    QWidget& widget() { return *m_widget; }
    /** Puts the values into the widgets, where a value has changed since. */
    void showValues() const;
    /** Takes them out again. */
    void clearValues() const;

private:
    QWidget* copyWidget(const QWidget& original);
    QWidget* newChooser(const QWidget& original);
    QWidget* newWidget(const QWidget& original);
    QLayout* copyLayout(const QLayout& original);
    template <class Twin, class Value>
    void copyValue(Twin* twin, void (Twin::*set)(Value), const std::decay_t<Value>& value);

    std::vector<std::function<void()>> m_show;
    std::vector<std::function<void()>> m_clear;
    std::unique_ptr<QWidget> m_widget; ///< last: its making fills the lists
};
