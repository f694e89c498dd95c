// Tests whether a web address answers.
#pragma once

#include <QUrl>

#include <functional>

namespace linkCheck {

// Asks the address's host for the head of its path over plain HTTP, also for https addresses.
// port: where the server listens (the address's own port does not count). True when the first part
// of the reply holds "200 OK" or "301 Moved Permanently"; redirects are not followed. Waits for up
// to timeoutMs for the connection and as long again for the reply, and lets the program's events
// through meanwhile. keepGoing is asked at least every 50 ms of that; its answer false ends the
// waiting, with the result false. Needs an application object, no window.
bool answers(const QUrl &url, quint16 port = 80, int timeoutMs = 10000,
             const std::function<bool()> &keepGoing = {});

} // namespace linkCheck
