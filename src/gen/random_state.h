// SPDX-License-Identifier: BSD-3-Clause
// The state records of RandUniform and RandGauss in caller memory.
//
// GetSize reports sizeof(record) plus 63 bytes of slack; Init rounds the
// caller's block address up to the next multiple of 64 and builds the
// record there, and every generating call rounds the same pointer the same
// way, so the caller keeps passing the block address it allocated. The
// record starts with the 32-bit identifier of its kind, which every
// generating call checks (qspStsBadRecord); Init writes it last, after the
// checks, so a block that failed Init is never taken for a record.
#pragma once
#include "qspdefs.h"
#include "random_engine.h"

namespace rng {

// Identifiers: four characters, "RU" uniform or "RG" Gaussian and the
// element width, as they read in memory.
constexpr Qsp32u fourCC(char a, char b, char c, char d)
{
    return Qsp32u(Qsp8u(a)) | Qsp32u(Qsp8u(b)) << 8 | Qsp32u(Qsp8u(c)) << 16 | Qsp32u(Qsp8u(d)) << 24;
}
enum Kind : Qsp32u {
    kUniform8u = fourCC('R', 'U', '0', '8'),
    kUniform16s = fourCC('R', 'U', '1', '6'),
    kUniform32f = fourCC('R', 'U', '3', '2'),
    kUniform64f = fourCC('R', 'U', '6', '4'),
    kGauss8u = fourCC('R', 'G', '0', '8'),
    kGauss16s = fourCC('R', 'G', '1', '6'),
    kGauss32f = fourCC('R', 'G', '3', '2'),
    kGauss64f = fourCC('R', 'G', '6', '4'),
};

constexpr Qsp64u kAlign = 64;

// A record: identifier, the family's parameters, then the engine.
template <class Params>
struct Record {
    Qsp32u id;
    Qsp32u reserved;
    Params params;
    alignas(16) Engine engine;
};

template <class Params>
constexpr int stateBytes()
{
    return int(sizeof(Record<Params>) + kAlign - 1);
}

// The record's place inside the caller's block.
template <class Params>
Record<Params>* place(void* block)
{
    return reinterpret_cast<Record<Params>*>((reinterpret_cast<Qsp64u>(block) + kAlign - 1) & ~(kAlign - 1));
}

// The record of a generating call, or null when the identifier is not
// that of the kind.
template <class Params>
Record<Params>* opened(void* block, Kind kind)
{
    Record<Params>* r = place<Params>(block);
    return r->id == kind ? r : nullptr;
}

template <class Params>
QspStatus getSize(int* pStateSize)
{
    if (pStateSize == nullptr) return qspStsNullPtr;
    *pStateSize = stateBytes<Params>();
    return qspStsOk;
}

// Init after its checks: the parameters, the seeded engine, the
// identifier.
template <class Params>
QspStatus build(void* block, Kind kind, const Params& params, Qsp32u seed)
{
    Record<Params>* r = place<Params>(block);
    r->reserved = 0;
    r->params = params;
    rng::seed(r->engine, seed);
    r->id = kind;
    return qspStsOk;
}

}  // namespace rng
