// The clipboard in an editing tree: the same in every window.
#pragma once

#include "commands/command.h"

#include <functional>
#include <memory>

class htmlView;
class myTreeView;

namespace cellClipboard {

// Copies the selected cells, or the current one. Returns how many.
int copy(const myTreeView *view);

// Pastes from the first selected cell on, or from the current one. push gets the step, when
// anything changes; the texts that do not fit their cells are then listed in the errors window.
// Returns the number of cells changed.
using pushFunction = std::function<void(std::unique_ptr<command>)>;
int paste(myTreeView *view, const pushFunction &push, htmlView *page = nullptr);

// Pastes into new rows, the first of which becomes row "at", from the first selected column on, or
// from the usual one.
int pasteRows(myTreeView *view, int at, int usualColumn, const pushFunction &push);

} // namespace cellClipboard
