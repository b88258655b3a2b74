#include "export/TSRunSession.h"

#include <algorithm>

TSRunSession::Current::Current(TSRunSession &session)
    : m_data(session.m_data), m_photos(session.m_photos), m_overlays(session.m_overlays)
{
}

std::unique_ptr<TSRunSession> TSRunSession::snapshot()
{
    return std::unique_ptr<TSRunSession>(new TSRunSession);
}

TSRunSession::TSRunSession()
    : m_origin(*TSDataManager::dataManager())
    , m_data(m_origin)
    , m_photos(*TSPhotoManager::photoManager())
    , m_overlays(*TSOverlayManager::overlayManager())
{
}

void TSRunSession::computeOutputSizes()
{
    for (const auto &photo : m_photos.photos()) {
        if (photo->photoSize.width() == 0)
            m_data.GetPhotoSize(photo->index);
        photo->photoOutputSize = m_data.sizeFor(photo->photoSize);
    }
}

bool TSRunSession::isHasBiggerPhoto(double pixels) const
{
    const auto photos = m_photos.photos();
    return std::any_of(photos.begin(), photos.end(), [pixels](const auto &photo) {
        return photo->photoOutputSize.width() * photo->photoOutputSize.height() > pixels;
    });
}
