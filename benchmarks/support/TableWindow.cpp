#include "benchmarks/support/TableWindow.h"

#include "benchmarks/support/Bench.h"

#include <QCoreApplication>
#include <QVBoxLayout>

TableWindow::TableWindow(QWidget& content) : m_content(content)
{
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(&content);
    content.hide();
    resize(480, 600);
    show();
    Bench::waitForPaint(*this);
    settle();
}

TableWindow::~TableWindow()
{
    m_content.hide();
    m_content.setParent(nullptr);
}

void TableWindow::settle()
{
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
}

void TableWindow::handleEvents()
{
    QCoreApplication::processEvents();
    // What the first round has posted with a low priority: the picture.
    QCoreApplication::sendPostedEvents();
}
