// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DcfStorage_p.h"
#include "IniDocument_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLockFile>
#include <QMutex>
#include <QSaveFile>

#include <vector>

namespace {

// The whole file, or false with the reason.
bool readFile(const QString &path, QByteArray *bytes, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    *bytes = file.readAll();
    return true;
}

// One edit of this process, kept until it is saved so that it can be applied
// again to a text someone else changed on disk.
struct Edit
{
    QStringList paths;  // one for a value, any number for removals
    QString value;
    bool set = false;
};

class SharedFile
{
public:
    explicit SharedFile(const QString &path)
        : m_path(path)
    {
        QString error;
        m_readable = readFile(m_path, &m_disk, &error);
        if (!m_readable) {
            qWarning("Cannot read data sheet %s: %s", qPrintable(m_path), qPrintable(error));
            return;
        }
        document.parse(m_disk);
    }

    ~SharedFile() { save(); }

    QString path() const { return m_path; }
    bool readable() const { return m_readable; }

    void apply(const Edit &edit)
    {
        bool changed = true;
        if (edit.set)
            document.setValue(edit.paths.first(), edit.value);
        else
            changed = document.removeAll(edit.paths);
        if (changed)
            record(edit);
    }

    // An edit already made to the text.
    void record(const Edit &edit)
    {
        // A key set again with nothing removed since takes the place of its
        // earlier setting: without an event loop the log grows with the keys
        // set, not with every edit.
        const auto earlier = edit.set ? m_lastSet.constFind(edit.paths.first()) : m_lastSet.constEnd();
        if (earlier != m_lastSet.constEnd() && *earlier > m_lastRemoval) {
            m_edits[size_t(*earlier)].value = edit.value;
        } else {
            if (edit.set)
                m_lastSet.insert(edit.paths.first(), int(m_edits.size()));
            else
                m_lastRemoval = int(m_edits.size());
            m_edits.push_back(edit);
        }
        ++revision;
        if (!m_saveQueued && QCoreApplication::instance()) {
            // As QSettings does: saved on the next pass of the event loop.
            m_saveQueued = true;
            QMetaObject::invokeMethod(&m_context, [this] {
                QMutexLocker locker(&mutex);
                m_saveQueued = false;
                save();
            }, Qt::QueuedConnection);
        }
    }

    // Takes in what someone else wrote since the text was last read or written,
    // with this process's edits applied on top again.
    void takeInDisk()
    {
        if (!m_readable)
            return;
        QByteArray bytes;
        if (!readFile(m_path, &bytes, nullptr))
            return;  // gone or unreadable: what is held here is all there is
        if (bytes == m_disk)
            return;
        IniDocument fresh;
        fresh.parse(bytes);
        for (const Edit &edit : m_edits) {
            if (edit.set)
                fresh.setValue(edit.paths.first(), edit.value);
            else
                fresh.removeAll(edit.paths);
        }
        document = std::move(fresh);
        m_disk = bytes;
        ++revision;
    }

    bool save()
    {
        // An unreadable file is never overwritten with what little we know of it.
        if (m_edits.empty() || !m_readable)
            return m_readable;
        QLockFile lock(m_path + QLatin1String(".lock"));
        if (!lock.lock()) {
            qWarning("Cannot lock data sheet %s", qPrintable(m_path));
            return false;
        }
        takeInDisk();
        const QByteArray bytes = document.toBytes();
        QSaveFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
            qWarning("Cannot write data sheet %s: %s", qPrintable(m_path), qPrintable(file.errorString()));
            return false;
        }
        m_disk = bytes;
        m_edits.clear();
        m_lastSet.clear();
        m_lastRemoval = -1;
        return true;
    }

    mutable QMutex mutex;
    IniDocument document;
    quint64 revision = 1;

private:
    QString m_path;
    QByteArray m_disk;  // the file as last read or written
    std::vector<Edit> m_edits;
    QHash<QString, int> m_lastSet;  // path -> its setting in m_edits
    int m_lastRemoval = -1;
    bool m_readable = false;
    bool m_saveQueued = false;
    QObject m_context;  // takes the queued save; a save still queued goes with it
};

struct Registry
{
    QMutex mutex;
    QHash<QString, std::weak_ptr<SharedFile>> files;
};

Registry &registry()
{
    static Registry *const instance = new Registry;
    return *instance;
}

// Symbolic links lead to one file, and a later change of directory changes nothing.
QString canonicalPath(const QString &fileName)
{
    const QFileInfo info(fileName);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

std::shared_ptr<SharedFile> findFile(const QString &path)
{
    Registry &r = registry();
    QMutexLocker locker(&r.mutex);
    return r.files.value(path).lock();
}

// Also says whether the file was open already, and so may be behind the disk.
std::shared_ptr<SharedFile> openFile(const QString &path, bool *wasOpen)
{
    Registry &r = registry();
    QMutexLocker locker(&r.mutex);
    std::shared_ptr<SharedFile> file = r.files.value(path).lock();
    *wasOpen = bool(file);
    if (file)
        return file;
    file = std::shared_ptr<SharedFile>(new SharedFile(path), [](SharedFile *gone) {
        {
            QMutexLocker locker(&gone->mutex);
            gone->save();
        }
        Registry &r = registry();
        {
            QMutexLocker locker(&r.mutex);
            const auto it = r.files.constFind(gone->path());
            if (it != r.files.constEnd() && it->expired())
                r.files.erase(it);
        }
        delete gone;
    });
    r.files.insert(path, file);
    return file;
}

class DocumentStorage final : public DcfStorage
{
public:
    explicit DocumentStorage(std::shared_ptr<SharedFile> file)
        : m_file(std::move(file))
    {
    }

    QStringList allKeys() const override
    {
        QMutexLocker locker(&m_file->mutex);
        return m_file->document.allKeys();
    }
    QStringList childGroups() const override
    {
        QMutexLocker locker(&m_file->mutex);
        return m_file->document.childGroups();
    }
    QVariant value(const QString &path, const QVariant &defaultValue) const override
    {
        QMutexLocker locker(&m_file->mutex);
        return m_file->document.variantValue(path, defaultValue);
    }
    void setValue(const QString &path, const QVariant &value) override
    {
        QMutexLocker locker(&m_file->mutex);
        m_file->apply({ { path }, value.toString(), true });
    }
    void remove(const QString &path) override
    {
        QMutexLocker locker(&m_file->mutex);
        m_file->apply({ { path }, QString(), false });
    }
    void removeAll(const QStringList &paths) override
    {
        QMutexLocker locker(&m_file->mutex);
        m_file->apply({ paths, QString(), false });
    }
    void removeKeysIf(const std::function<bool(const QString &)> &accept) override
    {
        QMutexLocker locker(&m_file->mutex);
        QStringList listed;
        if (m_file->document.removeKeysIf(accept, &listed))
            m_file->record({ listed, QString(), false });
    }
    bool sync() override
    {
        QMutexLocker locker(&m_file->mutex);
        return m_file->save();
    }
    quint64 revision() const override
    {
        QMutexLocker locker(&m_file->mutex);
        return m_file->revision;
    }

private:
    std::shared_ptr<SharedFile> m_file;
};

}

std::unique_ptr<DcfStorage> createDocumentStorage(const QString &fileName)
{
    bool wasOpen = false;
    std::shared_ptr<SharedFile> file = openFile(canonicalPath(fileName), &wasOpen);
    if (wasOpen) {
        // Opened again: what changed on disk in the meantime is taken in, as a
        // new QSettings on a file already open in the process does.
        QMutexLocker locker(&file->mutex);
        file->takeInDisk();
    }
    return std::make_unique<DocumentStorage>(std::move(file));
}

bool readDocument(const QString &fileName, IniDocument *document, QString *error)
{
    const std::shared_ptr<SharedFile> file = findFile(canonicalPath(fileName));
    if (!file)
        return document->load(fileName, error);
    QMutexLocker locker(&file->mutex);
    file->takeInDisk();
    *document = file->document;
    if (!file->readable() && error)
        *error = QCoreApplication::translate("DCFWriter", "the file could not be read");
    return file->readable();
}

bool readText(const QString &fileName, QByteArray *bytes, QString *error)
{
    if (const std::shared_ptr<SharedFile> file = findFile(canonicalPath(fileName))) {
        QMutexLocker locker(&file->mutex);
        if (file->readable()) {
            file->takeInDisk();
            *bytes = file->document.toBytes();
            return true;
        }
    }
    bytes->clear();
    return readFile(fileName, bytes, error);
}
