// Sounds, by the machine's own player.
#pragma once

#include <QString>
#include <functional>

// Starts to play the file and comes back at once. `file` is a path as the files keep them. Silent
// when there is no such file or the machine has no player.
void dnPlaySound(const QString& file);

// Who plays: null for the machine's player. Is given the native path of a file that exists.
using SoundPlayer = std::function<void(const QString& path)>;
// Gives the one that was there.
SoundPlayer installSoundPlayer(SoundPlayer player);
