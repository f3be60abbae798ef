#include "core/metadata/AudioTagReader.h"

#include <QFile>
#include <QLoggingCategory>

#include <taglib/fileref.h>
#include <taglib/tag.h>
#include <taglib/tdebuglistener.h>
#include <taglib/tfilestream.h>
#include <taglib/tpropertymap.h>

#include <climits>
#include <exception>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

Q_LOGGING_CATEGORY(lcAudioTags, "tavrin.metadata.audio")

namespace tavrin {

namespace {

// The tag library's property names.
constexpr char kArtistProperty[] = "ARTIST";
constexpr char kComposerProperty[] = "COMPOSER";

// The tag library's own diagnostics go to our logging category, not to standard error.
class DebugToCategory final : public TagLib::DebugListener {
public:
    void printMessage(const TagLib::String& message) override
    {
        qCDebug(lcAudioTags, "%s", message.toCString(true));
    }
};

void routeDiagnostics()
{
    static DebugToCategory listener;
    static std::once_flag once;
    std::call_once(once, [] { TagLib::setDebugListener(&listener); });
}

// Every text the tag library hands over is decoded here, as UTF-8, whatever the file held
// (Latin-1, UTF-16 or UTF-8 frames alike).
QString fromTagLib(const TagLib::String& text)
{
    return QString::fromStdString(text.to8Bit(true));
}

QStringList fromTagLib(const TagLib::StringList& texts)
{
    QStringList values;
    for (const TagLib::String& text : texts)
        values.append(fromTagLib(text));
    return values;
}

std::optional<int> nonZero(unsigned int number)
{
    if (number == 0 || number > unsigned(INT_MAX))
        return std::nullopt;
    return int(number);
}

// A stream over a file descriptor opened by us, that still tells the tag library the
// file's name so that it picks the format by extension before sniffing the content.
class NamedFileStream final : public TagLib::FileStream {
public:
    NamedFileStream(int descriptor, const QByteArray& name)
        : TagLib::FileStream(descriptor, true)
        , m_name(name)
    {
    }

    TagLib::FileName name() const override { return m_name.constData(); }

private:
    QByteArray m_name;
};

// A descriptor of the path when it is a regular file; -1 otherwise. Opening never waits on
// a FIFO or a device that happens to carry an audio extension.
int openRegularFile(const QByteArray& path)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return -1;
    struct stat status { };
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        return -1;
    }
    return descriptor;
}

AudioTags tagsOf(const TagLib::FileRef& file)
{
    AudioTags tags;
    const TagLib::Tag* tag = file.tag();
    const TagLib::PropertyMap properties = file.file()->properties();
    tags.authors = fromTagLib(properties[kArtistProperty]);
    if (tags.authors.isEmpty() && !tag->artist().isEmpty())
        tags.authors.append(fromTagLib(tag->artist()));
    tags.recordingYear = nonZero(tag->year());
    tags.musicalGenre = fromTagLib(tag->genre());
    tags.title = fromTagLib(tag->title());
    tags.album = fromTagLib(tag->album());
    tags.comment = fromTagLib(tag->comment());
    tags.audioTrackNumber = nonZero(tag->track());
    tags.composer = fromTagLib(properties[kComposerProperty]).join(QLatin1String(", "));
    return tags;
}

} // namespace

AudioTags AudioTagReader::read(const QString& path)
{
    routeDiagnostics();
    const QByteArray encoded = QFile::encodeName(path);
    const int descriptor = openRegularFile(encoded);
    if (descriptor < 0)
        return {};
    try {
        NamedFileStream stream(descriptor, encoded);
        if (!stream.isOpen()) {
            ::close(descriptor);
            return {};
        }
        const TagLib::FileRef file(&stream, false);
        if (file.isNull() || !file.tag())
            return {};
        return tagsOf(file);
    } catch (const std::exception& e) {
        qCWarning(lcAudioTags, "Error in reading audio tags : %s", e.what());
        return {};
    }
}

} // namespace tavrin
