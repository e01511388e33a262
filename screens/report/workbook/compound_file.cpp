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
    static std::once_flag initialized;
    std::call_once(initialized, gsf_init);
    const Owned<GsfOutput> memory(gsf_output_memory_new());
    if (!fill(memory.get(), streamName, stream))
        return false;
    const auto* bytes =
        reinterpret_cast<const char*>(gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(memory.get())));
    const qint64 size = gsf_output_size(memory.get());
    return file.write(bytes, size) == size;
}
