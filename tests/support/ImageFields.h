#pragma once

#include <Inventor/fields/SoSFImage.h>

#include <vector>

/** Gives a field an image of that size; its bytes count from 0, row by row from the bottom. */
inline void setCountingImage(SoSFImage& field, int width, int height, int components)
{
    std::vector<unsigned char> bytes(static_cast<std::size_t>(width) *
                                     static_cast<std::size_t>(height) *
                                     static_cast<std::size_t>(components));
    unsigned char next = 0;
    for (unsigned char& byte : bytes)
        byte = next++;
    field.setValue(SbVec2s(static_cast<short>(width), static_cast<short>(height)), components,
                   bytes.data());
}
