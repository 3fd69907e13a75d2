#include "xcomponents/qquick/picturecachemanage.h"

#include "config/projectmanage.h"
#include "platform/nlogger.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QMutexLocker>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickImageProvider>
#include <QSvgRenderer>

namespace {

const QString kProvider = QStringLiteral("xpicture");

class PictureProvider : public QQuickImageProvider {
public:
    PictureProvider()
        : QQuickImageProvider(QQuickImageProvider::Image)
    {
    }

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override
    {
        return PictureCacheManage::getInstance()->image(id, size, requestedSize);
    }
};

bool isSvg(const QString& file)
{
    return file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)
        || file.endsWith(QLatin1String(".svgz"), Qt::CaseInsensitive);
}

} // namespace

PictureCacheManage* PictureCacheManage::getInstance()
{
    static PictureCacheManage instance;
    return &instance;
}

PictureCacheManage::PictureCacheManage()
{
    m_decoded.setMaxCost(64 * 1024);
    m_vectors.setMaxCost(64);
}

QString PictureCacheManage::resolvePath(const QString& path)
{
    if (path.startsWith(QLatin1String("qrc:/")))
        return path.mid(3);
    if (path.startsWith(QLatin1String(":/")) || QDir::isAbsolutePath(path))
        return QDir::cleanPath(path);
    return QDir::cleanPath(ProjectManage::getInstance()->getImagePath() + path);
}

QUrl PictureCacheManage::getUrl(const QString& path)
{
    if (path.isEmpty())
        return QUrl();
    const QString file = resolvePath(path);
    const QFileInfo info(file);
    if (!info.isFile())
        return QUrl();
    QMutexLocker lock(&m_mutex);
    auto it = m_numbers.constFind(file);
    int n = 0;
    if (it == m_numbers.constEnd()) {
        n = m_numbers.size() + 1;
        m_numbers.insert(file, n);
        m_files.insert(n, file);
    } else {
        n = it.value();
    }
    return QUrl(QStringLiteral("image://xpicture/") + QString::number(n));
}

void PictureCacheManage::attach(QQmlEngine* engine)
{
    if (engine && !engine->imageProvider(kProvider))
        engine->addImageProvider(kProvider, new PictureProvider);
}

QImage PictureCacheManage::image(const QString& key, QSize* size, const QSize& asked)
{
    // no picture is decoded larger than this, whatever is asked: the item stretches it
    constexpr int kMaxSide = 4096;
    const QSize requested = asked.isValid() ? asked.boundedTo(QSize(kMaxSide, kMaxSide)) : asked;
    QMutexLocker lock(&m_mutex);
    const QString file = m_files.value(key.toInt());
    QImage out;
    if (file.isEmpty()) {
        // not a number handed out by getUrl
    } else if (isSvg(file)) {
        QByteArray* doc = m_vectors.object(file);
        if (!doc) {
            QFile f(file);
            doc = new QByteArray(f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray());
            ++m_decodeCount;
            m_vectors.insert(file, doc, 1);
        }
        QSvgRenderer renderer(*doc);
        if (renderer.isValid()) {
            QSize target = renderer.defaultSize();
            if (requested.width() > 0 && requested.height() > 0)
                target = requested;
            else if (requested.width() > 0 || requested.height() > 0)
                target.scale(requested.width() > 0 ? requested.width() : INT_MAX,
                    requested.height() > 0 ? requested.height() : INT_MAX, Qt::KeepAspectRatio);
            out = QImage(target.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
            out.fill(Qt::transparent);
            QPainter p(&out);
            renderer.render(&p, QRectF(QPointF(0, 0), QSizeF(out.size())));
        }
    } else {
        QImage* decoded = m_decoded.object(file);
        if (!decoded) {
            QImageReader reader(file);
            reader.setAutoTransform(true);
            QImage img = reader.read();
            ++m_decodeCount;
            if (img.isNull()) {
                NLog::NLogger::instance()->log(spdlog::level::warn, "qgui/views/PictureCacheManage", "image",
                    "cannot decode {}: {}", file.toStdString(), reader.errorString().toStdString());
            }
            out = img;
            m_decoded.insert(file, new QImage(img), qMax<int>(1, int(img.sizeInBytes() / 1024)));
        } else {
            out = *decoded;
        }
        if (!out.isNull() && requested.isValid() && !requested.isEmpty() && requested != out.size())
            out = out.scaled(requested, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    if (size)
        *size = out.size();
    return out;
}

int PictureCacheManage::decodeCount() const
{
    QMutexLocker lock(&m_mutex);
    return m_decodeCount;
}

void PictureCacheManage::clear()
{
    QMutexLocker lock(&m_mutex);
    m_decoded.clear();
    m_vectors.clear();
    m_decodeCount = 0;
}
