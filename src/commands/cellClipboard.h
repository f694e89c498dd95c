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
int paste(myTreeView *view, const std::function<void(std::unique_ptr<command>)> &push,
          htmlView *page = nullptr);

} // namespace cellClipboard
