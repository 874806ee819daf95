// One step of dragging a numeric editor's slider: the field is written, the command goes onto the
// undo stack, the sensor refreshes the editor, and the editor is painted. Against setting the field
// from a text and painting a bare slider. Both in real windows of the same size.

#include "benchmarks/support/Bench.h"
#include "lib/HostServices.h"
#include "scenegraph/SoTavrik.h"

#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"
#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoNode.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QApplication>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

const int s_steps = 301;
const QSize s_size(320, 60);

/** A slider on a step back and forth: every step moves it by one position. */
int position(int step)
{
    return 20 + step % 60;
}

void show(QWidget& window, QWidget& content)
{
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(&content);
    window.resize(s_size);
    window.show();
    Bench::waitForPaint(window);
    for (int i = 0; i < 50; ++i)
        QCoreApplication::processEvents();
}

/** An editor on a field, with its slider held down. */
class DraggedEditor
{
public:
    DraggedEditor(DvSFieldWidget& editor, SoField& field) : m_editor(editor)
    {
        SoTypedObject object(&field);
        m_editor.createWidgets();
        m_editor.setEditedObject(&object);
        show(m_window, *m_editor.getWidget());
        m_editor.activate();
        m_slider = m_editor.getWidget()->findChild<QSlider*>();
        m_slider->setSliderDown(true);
        Bench::waitForPaint(*m_editor.getWidget());
    }
    ~DraggedEditor()
    {
        m_slider->setSliderDown(false);
        m_editor.deactivate();
        m_editor.getWidget()->setParent(nullptr);
    }
    DraggedEditor(const DraggedEditor&) = delete;
    DraggedEditor& operator=(const DraggedEditor&) = delete;

    void drag(int step)
    {
        m_slider->setValue(position(step));
        SoDB::getSensorManager()->processDelayQueue(TRUE);
        Bench::waitForPaint(*m_slider);
    }

private:
    HostServices m_services;
    QWidget m_window;
    DvSFieldWidget& m_editor;
    QSlider* m_slider = nullptr;
};

/** A field, and a slider that nobody listens to. */
class BareSlider
{
public:
    explicit BareSlider(SoField& field) : m_field(field)
    {
        m_slider->setRange(0, 100);
        show(m_window, *m_slider);
        m_slider->setSliderDown(true);
    }

    void drag(int step)
    {
        m_field.set(QByteArray::number(position(step)).constData());
        m_slider->setValue(position(step));
        Bench::waitForPaint(*m_slider);
    }

private:
    SoField& m_field;
    QWidget m_window;
    QSlider* const m_slider = new QSlider(Qt::Horizontal); ///< owned by the window
};

double median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/** Takes turns, so that what else the machine does meets both alike. */
template <class Editor>
void compare(const char* editorName, const char* nodeType, const char* fieldName)
{
    auto* const node = static_cast<SoNode*>(SoType::fromName(nodeType).createInstance());
    node->ref();
    SoField& field = *node->getField(fieldName);
    {
        Editor editor;
        DraggedEditor dragged(editor, field);
        const std::unique_ptr<SoField> own(
            static_cast<SoField*>(field.getTypeId().createInstance()));
        BareSlider bare(*own);
        std::vector<double> editorTimes;
        std::vector<double> bareTimes;
        for (int step = 0; step < s_steps; ++step) {
            editorTimes.push_back(Bench::median(1, [&] { dragged.drag(step); }));
            bareTimes.push_back(Bench::median(1, [&] { bare.drag(step); }));
        }
        const double time = median(editorTimes);
        const QString name = QStringLiteral("slider dragged a step, %1 (%2 ms)")
                                 .arg(QLatin1String(editorName))
                                 .arg(time * 1e3, 0, 'f', 2);
        Bench::printAtMost(name.toUtf8().constData(), time / median(bareTimes), 2.0);
    }
    node->unref();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    compare<DvSFFloatWidget>("DvSFFloatWidget", "Sphere", "radius");
    compare<DvSFInt32Widget>("DvSFInt32Widget", "Switch", "whichChild");
    return EXIT_SUCCESS;
}
