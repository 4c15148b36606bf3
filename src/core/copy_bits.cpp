// SPDX-License-Identifier: BSD-3-Clause
// CopyLE_1u / CopyBE_1u: a run of bits copied between arbitrary bit
// offsets, the destination bits around the run kept.
//
// Bit k of a string is bit k % 8 of byte k / 8. CopyLE_1u counts bits
// within a byte from the most significant end (bit 0 = 0x80), CopyBE_1u
// from the least significant end (bit 0 = 0x01). Only bytes that hold bits
// of the run are read or written.
#include "checks.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// The source bits stream through an accumulator a byte at a time and leave
// it a destination byte (or the part of one the run covers) at a time.
// MsbFirst selects the bit numbering.
template <bool MsbFirst>
void ownsCopy_1u(const Qsp8u* pSrc, int srcBit, Qsp8u* pDst, int dstBit, Qsp64s len)
{
    Qsp64u acc = MsbFirst ? (pSrc[0] & (0xFFu >> srcBit)) : (pSrc[0] >> srcBit);
    int accBits = 8 - srcBit;
    Qsp64s nextSrc = 1;
    for (Qsp64s left = len; left > 0;) {
        const int room = 8 - dstBit;
        const int take = left < room ? int(left) : room;
        while (accBits < take) {
            acc = MsbFirst ? ((acc << 8) | pSrc[nextSrc]) : (acc | (Qsp64u(pSrc[nextSrc]) << accBits));
            ++nextSrc;
            accBits += 8;
        }
        const unsigned ones = (1u << take) - 1;
        unsigned bits;
        unsigned shift;
        if (MsbFirst) {
            bits = unsigned(acc >> (accBits - take)) & ones;
            shift = unsigned(room - take);
        } else {
            bits = unsigned(acc) & ones;
            acc >>= take;
            shift = unsigned(dstBit);
        }
        accBits -= take;
        const unsigned mask = ones << shift;
        *pDst = Qsp8u((*pDst & ~mask) | (bits << shift));
        left -= take;
        dstBit += take;
        if (dstBit == 8) {
            dstBit = 0;
            ++pDst;
        }
    }
}

template <bool MsbFirst>
QspStatus copyBits(const Qsp8u* pSrc, int srcBitOffset, Qsp8u* pDst, int dstBitOffset, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (srcBitOffset < 0 || dstBitOffset < 0) return qspStsBadSize;
    ownsCopy_1u<MsbFirst>(pSrc + srcBitOffset / 8, srcBitOffset % 8, pDst + dstBitOffset / 8,
                          dstBitOffset % 8, len);
    return qspStsOk;
}

}  // namespace

QspStatus qspsCopyLE_1u(const Qsp8u* pSrc, int srcBitOffset, Qsp8u* pDst, int dstBitOffset, int len)
{
    return copyBits<true>(pSrc, srcBitOffset, pDst, dstBitOffset, len);
}

QspStatus qspsCopyBE_1u(const Qsp8u* pSrc, int srcBitOffset, Qsp8u* pDst, int dstBitOffset, int len)
{
    return copyBits<false>(pSrc, srcBitOffset, pDst, dstBitOffset, len);
}

}  // namespace y8
