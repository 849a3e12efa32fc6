#include "platform/images/formats/JxlFormat.h"

#include "platform/images/WholeFrameTurn.h"
#include "platform/images/gate/HeaderGate.h"

#include <jxl/decode_cxx.h>

#include <optional>

namespace Quorbel {

namespace {

// Feeds a file to the decoder piece by piece and collects what comes out.
class JxlReading {
public:
    explicit JxlReading(const DecodeSource& source)
        : m_source(source)
        , m_decoder(JxlDecoderMake(nullptr))
    {
    }

    DecodedFrame run()
    {
        constexpr int events = JXL_DEC_BASIC_INFO | JXL_DEC_COLOR_ENCODING | JXL_DEC_FULL_IMAGE;
        if (!m_decoder || JxlDecoderSubscribeEvents(m_decoder.get(), events) != JXL_DEC_SUCCESS)
            return {};
        while (!m_ended)
            step(JxlDecoderProcessInput(m_decoder.get()));
        return std::move(m_frame);
    }

private:
    void step(JxlDecoderStatus status)
    {
        switch (status) {
        case JXL_DEC_NEED_MORE_INPUT:
            return feed();
        case JXL_DEC_BASIC_INFO:
            return takeSize();
        case JXL_DEC_COLOR_ENCODING:
            return takeProfile();
        case JXL_DEC_NEED_IMAGE_OUT_BUFFER:
            return giveBuffer();
        case JXL_DEC_FULL_IMAGE:
            m_frame.outcome = DecodedImage::Outcome::decoded;
            break;
        default:
            break;
        }
        m_ended = true;
    }

    // The decoder gives back what it did not use, and wants it again in front of the next piece.
    void feed()
    {
        constexpr qint64 piece = 256LL * 1024;
        const size_t unused = JxlDecoderReleaseInput(m_decoder.get());
        m_input = m_input.right(qsizetype(unused)) + m_source.device.read(piece);
        m_ended = m_source.cancel.stop_requested() || m_input.size() <= qsizetype(unused)
            || JxlDecoderSetInput(
                   m_decoder.get(), reinterpret_cast<const uint8_t*>(m_input.constData()), size_t(m_input.size()))
                != JXL_DEC_SUCCESS;
    }

    void takeSize()
    {
        JxlBasicInfo info{};
        const bool known = JxlDecoderGetBasicInfo(m_decoder.get(), &info) == JXL_DEC_SUCCESS;
        m_size = QSize(int(qMin<uint32_t>(info.xsize, INT_MAX)), int(qMin<uint32_t>(info.ysize, INT_MAX)));
        m_format = info.alpha_bits == 0 ? QImage::Format_RGBX8888
            : info.alpha_premultiplied  ? QImage::Format_RGBA8888_Premultiplied
                                        : QImage::Format_RGBA8888;
        if (!known || !HeaderGate::allows(m_size, true)) {
            m_frame.outcome = known ? DecodedImage::Outcome::tooLarge : DecodedImage::Outcome::damaged;
            m_ended = true;
            return;
        }
        m_turn.emplace(m_size, m_source.cancel);
    }

    void takeProfile()
    {
        constexpr size_t largest = 16UL * 1024 * 1024;
        constexpr auto pixels = JXL_COLOR_PROFILE_TARGET_DATA;
        size_t length = 0;
        if (JxlDecoderGetICCProfileSize(m_decoder.get(), nullptr, pixels, &length) != JXL_DEC_SUCCESS
            || length > largest)
            return;
        QByteArray icc(qsizetype(length), Qt::Uninitialized);
        if (JxlDecoderGetColorAsICCProfile(
                m_decoder.get(), nullptr, pixels, reinterpret_cast<uint8_t*>(icc.data()), length)
            == JXL_DEC_SUCCESS)
            m_frame.icc = icc;
    }

    void giveBuffer()
    {
        const JxlPixelFormat layout{
            .num_channels = 4, .data_type = JXL_TYPE_UINT8, .endianness = JXL_NATIVE_ENDIAN, .align = 0
        };
        size_t needed = 0;
        m_frame.image = QImage(m_size, m_format);
        m_ended = m_frame.image.isNull()
            || JxlDecoderImageOutBufferSize(m_decoder.get(), &layout, &needed) != JXL_DEC_SUCCESS
            || needed != size_t(m_frame.image.sizeInBytes())
            || JxlDecoderSetImageOutBuffer(m_decoder.get(), &layout, m_frame.image.bits(), needed) != JXL_DEC_SUCCESS;
    }

    const DecodeSource& m_source;
    JxlDecoderPtr m_decoder;
    QByteArray m_input;
    QSize m_size;
    QImage::Format m_format = QImage::Format_RGBX8888;
    std::optional<WholeFrameTurn> m_turn;
    DecodedFrame m_frame;
    bool m_ended = false;
};

}  // namespace

DecodedFrame JxlFormat::decode(const DecodeSource& source)
{
    return JxlReading(source).run();
}

}  // namespace Quorbel
