#pragma once

#include <TvkCommand.h>

#include <Inventor/fields/SoField.h>

#include <functional>
#include <vector>

/** What is to be seen after one of a command's three operations. */
struct CommandOutcome
{
    const char* state;
    int notifications;
};

/** A command of the family, as its creator uses it, and what each of its steps leaves. */
struct CommandRow
{
    const char* name;
    const char* fieldClass;
    const char* start;
    std::function<void(SoField&)> widgetWrites;
    std::function<TvkCommand*(SoField&)> make;
    const char* written; ///< the state that the widget leaves
    CommandOutcome executed;
    CommandOutcome undone;
    CommandOutcome redone;
};

/** Every undo command, in each way of using it. */
const std::vector<CommandRow>& commandRows();
