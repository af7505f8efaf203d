#include "recognition/Samples.h"

// The assembler puts the files into the read-only data as they are.
#define ORLEN_SAMPLE(format)                                                                                 \
    asm(".pushsection .rodata\n"                                                                             \
        "orlen_sample_" #format ":\n"                                                                        \
        ".incbin \"" ORLEN_SAMPLES "/sample." #format "\"\n"                                                 \
        "orlen_sample_" #format "_end:\n"                                                                    \
        ".popsection\n");                                                                                    \
    extern "C" const std::uint8_t orlen_sample_##format[];                                                   \
    extern "C" const std::uint8_t orlen_sample_##format##_end[]

ORLEN_SAMPLE(avif);
ORLEN_SAMPLE(gif);
ORLEN_SAMPLE(heic);
ORLEN_SAMPLE(jpg);
ORLEN_SAMPLE(jxl);
ORLEN_SAMPLE(pdf);
ORLEN_SAMPLE(png);
ORLEN_SAMPLE(svg);
ORLEN_SAMPLE(tif);
ORLEN_SAMPLE(webp);

namespace orlen {

std::vector<std::span<const std::uint8_t>> Samples::all()
{
    return {{orlen_sample_avif, orlen_sample_avif_end}, {orlen_sample_gif, orlen_sample_gif_end},
            {orlen_sample_heic, orlen_sample_heic_end}, {orlen_sample_jpg, orlen_sample_jpg_end},
            {orlen_sample_jxl, orlen_sample_jxl_end},   {orlen_sample_png, orlen_sample_png_end},
            {orlen_sample_svg, orlen_sample_svg_end},   {orlen_sample_tif, orlen_sample_tif_end},
            {orlen_sample_pdf, orlen_sample_pdf_end},   {orlen_sample_webp, orlen_sample_webp_end}};
}

} // namespace orlen
