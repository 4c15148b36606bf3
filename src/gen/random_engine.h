// SPDX-License-Identifier: BSD-3-Clause
// The core generator of RandUniform and RandGauss: eight interleaved
// xoshiro256++ streams.
//
// Why xoshiro256++ (Blackman and Vigna, "Scrambled linear pseudorandom
// number generators", ACM TOMS 2021): a 256-bit linear engine with period
// 2^256 - 1 whose ++ scrambler leaves every output bit of full quality;
// it passes TestU01's BigCrush and PractRand to many terabytes; its
// operations (64-bit add, xor, shift) are exact integer arithmetic, so the
// sequence is the same on every machine and compiler; and it has a jump
// function that advances a state by 2^128 steps, which gives streams that
// provably never overlap.
//
// The sequence. The 32-bit seed goes through SplitMix64 (the seeding its
// authors recommend) to give stream 0's four state words; stream s is
// stream 0 jumped s times (2^128 s steps ahead). Step t of all eight
// streams yields the 64-bit words W(8t + s), s = 0..7, and the core stream
// is W(0), W(1), W(2), ... in that order. Consumers of 32-bit words read
// each W as two halves, low half first (the byte order of memory):
// V(2j) = W(j) mod 2^32, V(2j+1) = W(j) >> 32. Eight streams let four
// 128-bit registers (or one 512-bit one) step at once; the sequence does
// not depend on the vector width.
//
// Words are produced a batch (kBatchSteps steps of all streams) at a time
// into a buffer inside the state and read from there, so a call that
// stops inside a batch leaves the rest for the next call: the values do
// not depend on how a request is split into calls.
#pragma once
#include "qspdefs.h"
#include "simd.h"

namespace rng {

constexpr int kStreams = 8;
constexpr int kBatchSteps = 32;
constexpr int kBatchWords = kStreams * kBatchSteps;  // 64-bit words per batch
constexpr int kBatchHalves = 2 * kBatchWords;

struct Engine {
    alignas(16) Qsp64u s[4][kStreams];  // state word i of stream j: s[i][j]
    alignas(16) Qsp64u batch[kBatchWords];
    Qsp32s next;                        // first unread 32-bit half of the batch
    Qsp32s reserved[3];
};

// One xoshiro256++ step of one stream (scalar reference of the vector
// step below, and the step used by the jump).
inline Qsp64u step(Qsp64u* s)
{
    auto rotl = [](Qsp64u x, int k) { return (x << k) | (x >> (64 - k)); };
    const Qsp64u result = rotl(s[0] + s[3], 23) + s[0];
    const Qsp64u t = s[1] << 17;
    s[2] ^= s[0];
    s[3] ^= s[1];
    s[1] ^= s[2];
    s[0] ^= s[3];
    s[2] ^= t;
    s[3] = rotl(s[3], 45);
    return result;
}

// The state 2^128 steps ahead: the jump polynomial of xoshiro256 applied
// to the state (the sum of the states at the steps whose bit is set).
inline void jump(Qsp64u* s)
{
    constexpr Qsp64u kJump[4] = {0x180ec6d33cfd0abaull, 0xd5a61266f0c9392cull, 0xa9582618e03fc9aaull,
                                 0x39abdc4529b1661cull};
    Qsp64u acc[4] = {0, 0, 0, 0};
    for (Qsp64u word : kJump) {
        for (int b = 0; b < 64; ++b) {
            if ((word >> b) & 1) {
                for (int i = 0; i < 4; ++i) acc[i] ^= s[i];
            }
            step(s);
        }
    }
    for (int i = 0; i < 4; ++i) s[i] = acc[i];
}

inline Qsp64u splitMix64(Qsp64u& x)
{
    Qsp64u z = (x += 0x9e3779b97f4a7c15ull);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ull;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebull;
    return z ^ (z >> 31);
}

// Fills the batch with the next kBatchSteps steps of every stream. The
// streams go four at a time (two registers of two lanes), whose state
// fits the sixteen vector registers with room for the step's temporaries.
inline void refill(Engine& e)
{
    using V = simd::Vec<Qsp64u>;
    using R = V::Reg;
    for (int g = 0; g < kStreams; g += 4) {
        R a0 = V::load(&e.s[0][g]), a1 = V::load(&e.s[1][g]), a2 = V::load(&e.s[2][g]), a3 = V::load(&e.s[3][g]);
        R b0 = V::load(&e.s[0][g + 2]), b1 = V::load(&e.s[1][g + 2]), b2 = V::load(&e.s[2][g + 2]),
          b3 = V::load(&e.s[3][g + 2]);
        auto advance = [](R& s0, R& s1, R& s2, R& s3) {
            const R result = V::add(V::rotateLeft<23>(V::add(s0, s3)), s0);
            const R t = V::shiftLeft<17>(s1);
            s2 = V::bitXor(s2, s0);
            s3 = V::bitXor(s3, s1);
            s1 = V::bitXor(s1, s2);
            s0 = V::bitXor(s0, s3);
            s2 = V::bitXor(s2, t);
            s3 = V::rotateLeft<45>(s3);
            return result;
        };
        Qsp64u* out = e.batch + g;
        for (int t = 0; t < kBatchSteps; ++t, out += kStreams) {
            V::store(out, advance(a0, a1, a2, a3));
            V::store(out + 2, advance(b0, b1, b2, b3));
        }
        V::store(&e.s[0][g], a0), V::store(&e.s[1][g], a1), V::store(&e.s[2][g], a2), V::store(&e.s[3][g], a3);
        V::store(&e.s[0][g + 2], b0), V::store(&e.s[1][g + 2], b1), V::store(&e.s[2][g + 2], b2),
            V::store(&e.s[3][g + 2], b3);
    }
    e.next = 0;
}

// A seeded engine with an empty batch.
inline void seed(Engine& e, Qsp32u seed)
{
    Qsp64u x = seed;
    Qsp64u s[4];
    for (int i = 0; i < 4; ++i) s[i] = splitMix64(x);
    for (int j = 0; j < kStreams; ++j) {
        if (j > 0) jump(s);
        for (int i = 0; i < 4; ++i) e.s[i][j] = s[i];
    }
    e.next = kBatchHalves;
    for (Qsp32s& r : e.reserved) r = 0;
}

// The unread 32-bit halves of the batch (refilled first when none is
// left): a consumer reads some of them and reports how many by consume().
struct Halves {
    const Qsp32u* p;
    int count;
};
inline Halves unread(Engine& e)
{
    if (e.next == kBatchHalves) refill(e);
    return {reinterpret_cast<const Qsp32u*>(e.batch) + e.next, kBatchHalves - e.next};
}
inline void consume(Engine& e, int halves) { e.next += halves; }

// The next 64-bit word, for consumers that read words one at a time. They
// never read halves, so e.next stays even.
inline Qsp64u nextWord(Engine& e)
{
    if (e.next == kBatchHalves) refill(e);
    const Qsp64u w = e.batch[e.next >> 1];
    e.next += 2;
    return w;
}

}  // namespace rng
