#include "core/sounds.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "core/storage/file_paths.h"

namespace {

SoundPlayer installedPlayer;

void playByMachine(const QString& path)
{
    for (const char* name : {"paplay", "pw-play", "aplay"}) {
        const QString program = QStandardPaths::findExecutable(name);
        if (program.isEmpty())
            continue;
        QProcess player;
        player.setProgram(program);
        player.setArguments({path});
        player.setStandardInputFile(QProcess::nullDevice());
        player.setStandardOutputFile(QProcess::nullDevice());
        player.setStandardErrorFile(QProcess::nullDevice());
        player.startDetached();
        return;
    }
}

}  // namespace

void dnPlaySound(const QString& file)
{
    const QString path = storage::nativePath(file);
    if (!QFileInfo(path).isFile())
        return;
    if (installedPlayer)
        installedPlayer(path);
    else
        playByMachine(path);
}

SoundPlayer installSoundPlayer(SoundPlayer player)
{
    return std::exchange(installedPlayer, std::move(player));
}
