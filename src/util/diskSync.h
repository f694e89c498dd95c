// Waits until what was written has reached the disk; each system has its own call for it.
#pragma once

class QFileDevice;

// The file is open and flushed. Failure is not told: some file systems cannot do it.
void syncToDisk(const QFileDevice &file);
