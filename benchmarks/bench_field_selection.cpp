// Selecting a field, to the end of the first picture of its editor, against showing a form of the
// same bare Qt widgets in the same kind of dock and setting their values. Both in real windows. A
// frame of a 60 Hz display takes 16.7 ms.

#include "benchmarks/support/BareTwin.h"
#include "benchmarks/support/Bench.h"
#include "lib/HostServices.h"
#include "lib/HostShell.h"
#include "scenegraph/SoTavrik.h"

#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"
#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"
#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"
#include "FieldEditors/SFWidgets/DvSFColorWidget.h"
#include "FieldEditors/SFWidgets/DvSFDoubleWidget.h"
#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"
#include "FieldEditors/SFWidgets/DvSFFilePathStringWidget.h"
#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"
#include "FieldEditors/SFWidgets/DvSFImageWidget.h"
#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "FieldEditors/SFWidgets/DvSFMatrixWidget.h"
#include "FieldEditors/SFWidgets/DvSFNameWidget.h"
#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"
#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"
#include "FieldEditors/SFWidgets/DvSFShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFStringWidget.h"
#include "FieldEditors/SFWidgets/DvSFUInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFUShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2i32Widget.h"
#include "FieldEditors/SFWidgets/DvSFVec2sWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec4fWidget.h"
#include "FieldEditors/TvkFieldEditorDockWin.h"
#include <TvkProfileSetting.h>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/nodes/SoNode.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

namespace {

const int s_runs = 31;
const QSize s_size(600, 400);

/** One editor, and a field that it is for. */
struct Row
{
    const char* editorName;
    std::function<std::unique_ptr<TvkEditor>()> newEditor;
    const char* nodeType;
    const char* fieldName;
};

template <class Editor>
Row row(const char* editorName, const char* nodeType, const char* fieldName)
{
    return {editorName, [] { return std::make_unique<Editor>(); }, nodeType, fieldName};
}

std::vector<Row> rows()
{
    const char* const own = "Things";
    return {
        row<DvSFBitMaskWidget>("DvSFBitMaskWidget", "Cylinder", "parts"),
        row<DvSFBoolWidget>("DvSFBoolWidget", "ClipPlane", "on"),
        row<DvSFBox3sWidget>("DvSFBox3sWidget", own, "box"),
        row<DvSFColorWidget>("DvSFColorWidget", own, "color"),
        row<DvSFDoubleWidget>("DvSFDoubleWidget", own, "precise"),
        row<DvSFEnumWidget>("DvSFEnumWidget", "DrawStyle", "style"),
        row<DvSFFilePathStringWidget>("DvSFFilePathStringWidget", own, "path"),
        row<DvSFFloatWidget>("DvSFFloatWidget", own, "real"),
        row<DvSFImageWidget>("DvSFImageWidget", own, "image"),
        row<DvSFInt32Widget>("DvSFInt32Widget", own, "number"),
        row<DvSFLineWidget>("DvSFLineWidget", own, "time"),
        row<DvSFMatrixWidget>("DvSFMatrixWidget", own, "matrix"),
        row<DvSFNameWidget>("DvSFNameWidget", own, "name"),
        row<DvSFPlaneWidget>("DvSFPlaneWidget", own, "plane"),
        row<DvSFRotationWidget>("DvSFRotationWidget", own, "rotation"),
        row<DvSFShortWidget>("DvSFShortWidget", own, "little"),
        row<DvSFStringWidget>("DvSFStringWidget", own, "text"),
        row<DvSFUInt32Widget>("DvSFUInt32Widget", own, "natural"),
        row<DvSFUShortWidget>("DvSFUShortWidget", own, "littleNatural"),
        row<DvSFVec2fWidget>("DvSFVec2fWidget", own, "spot"),
        row<DvSFVec2i32Widget>("DvSFVec2i32Widget", own, "cell"),
        row<DvSFVec2sWidget>("DvSFVec2sWidget", own, "littleCell"),
        row<DvSFVec3fWidget>("DvSFVec3fWidget", own, "place"),
        row<DvSFVec4fWidget>("DvSFVec4fWidget", own, "quad"),
    };
}

/** A node with a field of nearly every type. */
const char* const s_things =
    "#Inventor V2.1 ascii\n"
    "Things {\n"
    "  fields [ SFBox3s box, SFColor color, SFDouble precise, SFFilePathString path, SFFloat real,\n"
    "    SFImage image, SFInt32 number, SFTime time, SFMatrix matrix, SFName name, SFPlane plane,\n"
    "    SFRotation rotation, SFShort little, SFString text, SFUInt32 natural,\n"
    "    SFUShort littleNatural, SFVec2f spot, SFVec2i32 cell, SFVec2s littleCell,\n"
    "    SFVec3f place, SFVec4f quad ]\n"
    "  box -1 -2 -3  1 2 3  color 0.9 0.5 0.1  precise 3.141592653589793  path \"a/b.png\"\n"
    "  real 2.5  image 2 2 1 0x20 0x40 0x60 0x80  number 42  time 12.5  name \"parrot\"\n"
    "  plane 0 1 0  2  rotation 0 1 0  0.7  little -7  text \"hello\"  natural 255\n"
    "  littleNatural 31  spot 0.5 0.25  cell 19 10  littleCell 6 4  place 1 2 3  quad 1 2 3 4\n"
    "}\n";

/** Referenced once. */
SoNode* newNode(const char* type)
{
    SoNode* node = nullptr;
    if (QLatin1String(type) != QLatin1String("Things")) {
        node = static_cast<SoNode*>(SoType::fromName(type).createInstance());
    } else {
        SoInput input;
        input.setBuffer(s_things, std::strlen(s_things));
        SoDB::read(&input, node);
    }
    node->ref();
    return node;
}

/** Lets everything pass that the last step has set going. */
void settle()
{
    for (int i = 0; i < 50; ++i)
        QCoreApplication::processEvents();
}

void showWindow(QMainWindow& window)
{
    window.resize(s_size);
    window.show();
    Bench::waitForPaint(window);
    settle();
}

/** The field editor dock with one editor, in a window of the host. */
class SelectedField
{
public:
    explicit SelectedField(const Row& row) : m_shell(m_window), m_editor(row.newEditor())
    {
        m_node = newNode(row.nodeType);
        m_field = m_node->getField(row.fieldName);
        m_editor->createWidgets();
        m_setting.control(m_editor.get());
        m_dock.setProfileSetting(&m_setting);
        m_dock.createWidgets();
        m_dock.activate();
        m_services.selectNode(m_node);
        showWindow(m_window);
    }
    ~SelectedField()
    {
        m_dock.deactivate();
        m_dock.releaseWidgets();
        m_editor->releaseWidgets();
        m_services.selectNode(nullptr);
        m_node->unref();
    }
    SelectedField(const SelectedField&) = delete;
    SelectedField& operator=(const SelectedField&) = delete;

    QWidget& widget() const { return *m_editor->getWidget(); }
    void select()
    {
        m_services.selectField(m_field);
        Bench::waitForPaint(widget());
    }
    void deselect()
    {
        m_services.selectField(nullptr);
        settle();
    }

private:
    QMainWindow m_window;
    HostServices m_services;
    HostShell m_shell;
    TvkProfileSetting m_setting;
    TvkFieldEditorDockWin m_dock;
    std::unique_ptr<TvkEditor> m_editor;
    SoNode* m_node = nullptr;
    SoField* m_field = nullptr;
};

/** A dock with the bare form in a window of the same size. */
class BareForm
{
public:
    explicit BareForm(const QWidget& original) : m_twin(original)
    {
        m_dock = new QDockWidget(QStringLiteral("Field Editor"));
        m_dock->hide();
        m_window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
        m_twin.widget().hide();
        showWindow(m_window);
    }
    ~BareForm() { hide(); }
    BareForm(const BareForm&) = delete;
    BareForm& operator=(const BareForm&) = delete;

    void show()
    {
        m_dock->setWidget(&m_twin.widget());
        m_twin.showValues();
        m_twin.widget().show();
        m_dock->show();
        Bench::waitForPaint(m_twin.widget());
    }
    void hide()
    {
        m_twin.widget().hide();
        m_dock->setWidget(nullptr);
        m_twin.widget().setParent(nullptr);
        m_dock->hide();
        m_twin.clearValues();
        settle();
    }

private:
    QMainWindow m_window;
    BareTwin m_twin;
    QDockWidget* m_dock = nullptr; ///< owned by the window
};

double median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/** Takes turns, so that what else the machine does meets both alike. */
void compare(const Row& row)
{
    SelectedField field(row);
    field.select();
    BareForm form(field.widget());
    std::vector<double> selected;
    std::vector<double> shown;
    for (int i = 0; i < s_runs; ++i) {
        selected.push_back(Bench::median(
            1, [&field] { field.select(); }, [&field] { field.deselect(); }));
        shown.push_back(Bench::median(
            1, [&form] { form.show(); }, [&form] { form.hide(); }));
    }
    const double time = median(selected);
    const QString name = QStringLiteral("field selected, %1 (%2 ms)")
                             .arg(QLatin1String(row.editorName))
                             .arg(time * 1e3, 0, 'f', 2);
    Bench::printAtMost(name.toUtf8().constData(), time / median(shown), 1.5);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    for (const Row& row : rows())
        compare(row);
    return EXIT_SUCCESS;
}
