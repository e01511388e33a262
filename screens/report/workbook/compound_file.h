// The container of old workbooks: a file with streams in it.
#pragma once

#include <QByteArray>
#include <QIODevice>

// Writes a container with one stream. False after a failure.
bool writeCompoundFile(QIODevice& file, const char* streamName, const QByteArray& stream);
