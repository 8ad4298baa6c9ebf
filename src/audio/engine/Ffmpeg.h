#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

#include <cstdint>
#include <memory>

namespace tarvelo::engine {

// FFmpeg's handles, each with its own way to go.
struct FfmpegDeleter
{
    void operator()(AVCodecContext *codec) const { avcodec_free_context(&codec); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(SwrContext *resampler) const { swr_free(&resampler); }
};

using CodecPointer = std::unique_ptr<AVCodecContext, FfmpegDeleter>;
using FramePointer = std::unique_ptr<AVFrame, FfmpegDeleter>;
using PacketPointer = std::unique_ptr<AVPacket, FfmpegDeleter>;
using ResamplerPointer = std::unique_ptr<SwrContext, FfmpegDeleter>;

// In all of AAC's low complexity profile.
inline constexpr std::int64_t SamplesInPacket = 1024;

// FFmpeg talks on stderr unless told otherwise; nobody reads that here.
inline void keepFfmpegQuiet()
{
    av_log_set_level(AV_LOG_QUIET);
}

} // namespace tarvelo::engine
