// Platform code: the character set of file names and arguments.
#pragma once

// Call before the application object is made. Where the environment sets no locale, or one without
// Polish letters, file names are taken as UTF-8 for this process and its children. Does nothing on
// Windows, where they are Unicode anyway.
void ensureUtf8Locale();
