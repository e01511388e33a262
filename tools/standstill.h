// Database files held so that nobody writes in any of them.
#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "core/storage/engine.h"

class Standstill
{
public:
    // Takes the writers' turn of every file. Somebody who holds one of them and waits for another
    // would wait for us as we for him: so each is waited for only shortly, and then all are given
    // back and tried anew, beginning with the one that was taken. After `seconds` a CommandFailure
    // says which that is.
    Standstill(QStringList paths, int seconds);
    ~Standstill();
    Standstill(const Standstill&) = delete;
    Standstill& operator=(const Standstill&) = delete;

    // A copy of one of the files.
    void copy(const QString& path, const QString& toPath) const;

private:
    void takeAll(QStringList& paths);
    void release();

    std::vector<std::shared_ptr<storage::Engine>> m_files;
};
