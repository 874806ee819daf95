#include "FieldEditors/DvValueViews.h"

DvPlaneView::Numbers DvPlaneView::numbers(const SbPlane& plane)
{
    const DvVec3fView::Numbers normal = DvVec3fView::numbers(plane.getNormal());
    return {normal[0], normal[1], normal[2], static_cast<double>(plane.getDistanceFromOrigin())};
}

SbPlane DvPlaneView::value(const Numbers& numbers)
{
    return {DvVec3fView::value({numbers[0], numbers[1], numbers[2]}),
            static_cast<float>(numbers[3])};
}

DvAxisAngleView::Numbers DvAxisAngleView::numbers(const SbRotation& rotation)
{
    SbVec3f axis;
    float radians = 0.0F;
    rotation.getValue(axis, radians);
    const DvVec3fView::Numbers xyz = DvVec3fView::numbers(axis);
    return {xyz[0], xyz[1], xyz[2], static_cast<double>(radians)};
}

SbRotation DvAxisAngleView::value(const Numbers& numbers)
{
    SbRotation rotation;
    rotation.setValue(DvVec3fView::value({numbers[0], numbers[1], numbers[2]}),
                      static_cast<float>(numbers[3]));
    return rotation;
}

DvQuaternionView::Numbers DvQuaternionView::numbers(const SbRotation& rotation)
{
    const float* const q = rotation.getValue();
    return {static_cast<double>(q[0]), static_cast<double>(q[1]), static_cast<double>(q[2]),
            static_cast<double>(q[3])};
}

SbRotation DvQuaternionView::value(const Numbers& numbers)
{
    return {static_cast<float>(numbers[0]), static_cast<float>(numbers[1]),
            static_cast<float>(numbers[2]), static_cast<float>(numbers[3])};
}

DvBox3sView::Numbers DvBox3sView::numbers(const SbBox3s& box)
{
    std::array<short, 6> bounds = {};
    box.getBounds(bounds[0], bounds[1], bounds[2], bounds[3], bounds[4], bounds[5]);
    Numbers numbers = {};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = bounds[i];
    return numbers;
}

SbBox3s DvBox3sView::value(const Numbers& numbers)
{
    std::array<short, 6> bounds = {};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        bounds[i] = toComponent<short>(numbers[i]);
    return {bounds[0], bounds[1], bounds[2], bounds[3], bounds[4], bounds[5]};
}

DvMatrixView::Numbers DvMatrixView::numbers(const SbMatrix& matrix)
{
    Numbers numbers = {};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = static_cast<double>(matrix[static_cast<int>(i / 4)][i % 4]);
    return numbers;
}

SbMatrix DvMatrixView::value(const Numbers& numbers)
{
    SbMatrix matrix;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        matrix[static_cast<int>(i / 4)][i % 4] = static_cast<float>(numbers[i]);
    return matrix;
}
