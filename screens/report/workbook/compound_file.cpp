#include "screens/report/workbook/compound_file.h"

#undef signals
#include <gsf/gsf.h>

#include <mutex>

namespace {

struct Unreference
{
    void operator()(void* object) const { g_object_unref(object); }
};
template <class T>
using Owned = std::unique_ptr<T, Unreference>;

const guint8* bytesOf(const QByteArray& bytes)
{
    return reinterpret_cast<const guint8*>(bytes.constData());
}

void initialize()
{
    static std::once_flag initialized;
    std::call_once(initialized, [] {
        gsf_init();
        // What it finds wrong with a damaged file is told to the user, not to the terminal.
        const auto silent = [](const char*, GLogLevelFlags, const char*, void*) {};
        g_log_set_handler("libgsf:msole", static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK), silent,
                          nullptr);
    });
}

// The streams of a container that is closed, and so is whole.
bool fill(GsfOutput* sink, const char* streamName, const QByteArray& stream)
{
    const Owned<GsfOutfile> container(gsf_outfile_msole_new(sink));
    const Owned<GsfOutput> child(gsf_outfile_new_child(container.get(), streamName, FALSE));
    const bool written =
        gsf_output_write(child.get(), static_cast<size_t>(stream.size()), bytesOf(stream));
    const bool closed = gsf_output_close(child.get());
    return gsf_output_close(GSF_OUTPUT(container.get())) && written && closed;
}

}  // namespace

bool writeCompoundFile(QIODevice& file, const char* streamName, const QByteArray& stream)
{
    initialize();
    const Owned<GsfOutput> memory(gsf_output_memory_new());
    if (!fill(memory.get(), streamName, stream))
        return false;
    const auto* bytes =
        reinterpret_cast<const char*>(gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(memory.get())));
    const qint64 size = gsf_output_size(memory.get());
    return file.write(bytes, size) == size;
}

std::optional<QByteArray> readCompoundFile(const QByteArray& file,
                                           std::initializer_list<const char*> streamNames)
{
    initialize();
    const Owned<GsfInput> source(gsf_input_memory_new(bytesOf(file), file.size(), FALSE));
    const Owned<GsfInfile> container(gsf_infile_msole_new(source.get(), nullptr));
    if (!container)
        return std::nullopt;
    for (const char* name : streamNames) {
        const Owned<GsfInput> stream(gsf_infile_child_by_name(container.get(), name));
        if (!stream)
            continue;
        const gsf_off_t size = gsf_input_size(stream.get());
        // A size that the directory tells may be anything.
        if (size < 0 || size > file.size())
            return std::nullopt;
        QByteArray bytes(size, '\0');
        if (size > 0 && !gsf_input_read(stream.get(), static_cast<size_t>(size),
                                        reinterpret_cast<guint8*>(bytes.data())))
            return std::nullopt;
        return bytes;
    }
    return std::nullopt;
}
