// The container of old workbooks: a file with streams in it.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <optional>

// Writes a container with one stream. False after a failure.
bool writeCompoundFile(QIODevice& file, const char* streamName, const QByteArray& stream);

// The first of the streams that the container has, by its name; nothing when it has none of them,
// or is none or damaged.
std::optional<QByteArray> readCompoundFile(const QByteArray& file,
                                           std::initializer_list<const char*> streamNames);
