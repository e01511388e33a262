// The schema as a page for administrators and developers, in Markdown.
#pragma once

#include <QString>

QString schemaPage();
