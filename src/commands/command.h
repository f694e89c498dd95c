// A change that a user made, kept so that it can be taken back and done again.
#pragma once

#include <vector>

class QStandardItem;

// Every subclass applies itself in its constructor: a stack never calls redo() on what it is given.
// Neither call throws.
class command
{
public:
    command() = default;
    command(const command &) = delete;
    command &operator=(const command &) = delete;
    virtual ~command() = default;

    // Restores the state before the change. The base does nothing.
    virtual void undo() {}
    // Applies the change again. The base does nothing.
    virtual void redo() {}
    // Appends the cells in the tree that the change, as it stands now, is to be seen in.
    virtual void places(std::vector<QStandardItem *> &) const {}
};
