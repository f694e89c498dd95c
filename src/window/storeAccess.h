// The windows' way to the shared store of the configuration: reached while the window stays
// painted, the password from the desktop's store of secrets or asked for.
#pragma once

#include "store/storeSync.h"

#include <functional>
#include <memory>

class QWidget;
class configStruct;
class workProgress;

namespace storeAccess {

// Null, told to the user unless it was cancelled, when it cannot be reached. asks: whether a
// password may be asked for, and faults told.
std::unique_ptr<store::connection> open(const configStruct &config, workProgress &progress,
                                        bool asks = true);

// Does work that brings a document and the store together. progress shows it; conflicts are shown
// in a dialog over the window.
store::syncResult bringTogether(
    store::connection &with, workProgress &progress, QWidget *window,
    const std::function<store::syncResult(const store::conflictsSettled &settle,
                                          const progressFunction &progress)> &work);

// Asks for a name, and puts a file into the store under it. What came of it, for the status bar;
// faults were told. isSaved: called once there is a name; false gives it up.
QString put(const configStruct &config, workProgress &progress, const QString &path,
            const std::function<bool()> &isSaved);

// Goes on with a connection as the one that tells of others' changes, unless there is one.
void listen(std::unique_ptr<store::connection> with);

} // namespace storeAccess
