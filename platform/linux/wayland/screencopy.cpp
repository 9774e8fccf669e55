// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/waylandparts.h"

#include "platform/linux/wayland/waylandconnection.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>

#include <cstddef>
#include <optional>
#include <sys/mman.h>
#include <unistd.h>

namespace morrowleaf {

namespace {

constexpr qint64 patience = 250;                            // milliseconds
constexpr std::size_t largestPicture = 512UL * 1024 * 1024; // bytes

std::optional<QImage::Format> formatOf(std::uint32_t format) {
    switch (format) {
    case WL_SHM_FORMAT_ARGB8888:
    case WL_SHM_FORMAT_XRGB8888:
        return QImage::Format_RGB32;
    case WL_SHM_FORMAT_ABGR8888:
    case WL_SHM_FORMAT_XBGR8888:
        return QImage::Format_RGBX8888;
    default:
        return std::nullopt;
    }
}

// One frame that the compositor copies.
class Frame {
public:
    Frame(wl_shm* shm, zwlr_screencopy_frame_v1* frame)
        : shm_(shm)
        , frame_(frame) {
        static constexpr zwlr_screencopy_frame_v1_listener listener{
            onBuffer, onFlags, onReady, onFailed, nullptr, nullptr, nullptr};
        zwlr_screencopy_frame_v1_add_listener(frame, &listener, this);
    }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;
    ~Frame() {
        if (buffer_ != nullptr) {
            wl_buffer_destroy(buffer_);
        }
        if (memory_ != MAP_FAILED) {
            munmap(memory_, bytes_);
        }
        zwlr_screencopy_frame_v1_destroy(frame_);
    }

    bool isOver() const { return ready_ || failed_; }

    QImage picture() const {
        const auto format = formatOf(format_);
        if (!ready_ || !format) {
            return {};
        }
        const QImage shared(static_cast<const uchar*>(memory_), width_, height_, stride_, *format);
        QImage picture = upsideDown_ ? shared.mirrored() : shared.copy();
        picture.convertTo(QImage::Format_RGB32);
        return picture;
    }

private:
    void prepare(std::uint32_t format, std::uint32_t width, std::uint32_t height,
                 std::uint32_t stride) {
        bytes_ = std::size_t{stride} * height;
        format_ = format;
        width_ = static_cast<int>(width);
        height_ = static_cast<int>(height);
        stride_ = static_cast<int>(stride);
        const int file = bytes_ <= largestPicture ? memfd_create("morrowleaf", MFD_CLOEXEC) : -1;
        if (file < 0 || ftruncate(file, static_cast<off_t>(bytes_)) != 0) {
            failed_ = true;
        } else {
            memory_ = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
            failed_ = memory_ == MAP_FAILED;
        }
        if (!failed_) {
            auto* pool = wl_shm_create_pool(shm_, file, static_cast<std::int32_t>(bytes_));
            buffer_ = wl_shm_pool_create_buffer(pool, 0, width_, height_, stride_, format);
            wl_shm_pool_destroy(pool);
            zwlr_screencopy_frame_v1_copy(frame_, buffer_);
        }
        if (file >= 0) {
            close(file);
        }
    }

    static Frame& of(void* data) { return *static_cast<Frame*>(data); }
    static void onBuffer(void* data, zwlr_screencopy_frame_v1* /*frame*/, std::uint32_t format,
                         std::uint32_t width, std::uint32_t height, std::uint32_t stride) {
        of(data).prepare(format, width, height, stride);
    }
    static void onFlags(void* data, zwlr_screencopy_frame_v1* /*frame*/, std::uint32_t flags) {
        of(data).upsideDown_ = (flags & ZWLR_SCREENCOPY_FRAME_V1_FLAGS_Y_INVERT) != 0;
    }
    static void onReady(void* data, zwlr_screencopy_frame_v1* /*frame*/, std::uint32_t /*high*/,
                        std::uint32_t /*low*/, std::uint32_t /*nanoseconds*/) {
        of(data).ready_ = true;
    }
    static void onFailed(void* data, zwlr_screencopy_frame_v1* /*frame*/) {
        of(data).failed_ = true;
    }

    wl_shm* shm_;
    zwlr_screencopy_frame_v1* frame_;
    wl_buffer* buffer_ = nullptr;
    void* memory_ = MAP_FAILED;
    std::size_t bytes_ = 0;
    std::uint32_t format_ = 0;
    int width_ = 0;
    int height_ = 0;
    int stride_ = 0;
    bool upsideDown_ = false;
    bool ready_ = false;
    bool failed_ = false;
};

class Screencopy final : public DesktopPicture {
public:
    Screencopy()
        : display_(wayland::display())
        , queue_(wl_display_create_queue(display_))
        , globals_(wayland::bindGlobals(display_, queue_)) {}

    QImage capture(QScreen& screen) override {
        wl_output* output = wayland::outputOf(screen);
        // With several screens the compositor chooses one for the window, but only after
        // this call.
        if (globals_.screencopy == nullptr || globals_.shm == nullptr || output == nullptr ||
            QGuiApplication::screens().size() != 1) {
            return {};
        }
        Frame frame(globals_.shm,
                    zwlr_screencopy_manager_v1_capture_output(globals_.screencopy, 0, output));
        QElapsedTimer waiting;
        waiting.start();
        while (!frame.isOver() && waiting.elapsed() < patience &&
               wl_display_roundtrip_queue(display_, queue_) >= 0) {
        }
        return frame.picture();
    }

private:
    wl_display* display_;
    wl_event_queue* queue_;
    wayland::Globals globals_;
};

} // namespace

std::unique_ptr<DesktopPicture> makeScreencopy() {
    return std::make_unique<Screencopy>();
}

} // namespace morrowleaf
