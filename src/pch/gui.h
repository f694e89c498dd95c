// Precompiled for kivzp_gui: what most of its files include.
#include "pch/core.h"

#include <QAction>
#include <QWebView>
#include <QWidget>
