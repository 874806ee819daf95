#pragma once

#include <cstring>

/**
 * The place of a virtual function in its class's table. On this ABI a pointer to a virtual member
 * function starts with one more than the function's offset in the table; -1 when it is not virtual.
 */
template <class Function>
int slotOf(Function function)
{
    long word = 0;
    static_assert(sizeof(function) >= sizeof(word));
    std::memcpy(&word, &function, sizeof(word));
    return word % 2 == 1 ? static_cast<int>((word - 1) / static_cast<long>(sizeof(void*))) : -1;
}
