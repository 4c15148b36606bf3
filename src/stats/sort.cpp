// SPDX-License-Identifier: BSD-3-Clause
// SortAscend, SortDescend: in-place comparison sorts that need no buffer.
// Elements are ordered through the same unsigned keys as the radix sorts
// (floating values by the total order of their bit patterns: -NaN < -Inf <
// ... < -0.0 < +0.0 < ... < +Inf < +NaN), mapped in place, sorted as keys
// and mapped back. Bytes are counted instead.
#include "checks.h"
#include "introsort.h"
#include "qsp_validators.h"
#include "radix.h"

namespace y8 {
namespace {

using radix::Order;
namespace keys = radix::keys;

template <class Map, class T>
void ownsSortKeys(T* pSrcDst, Qsp64s len)
{
    using K = simd::Bits<T>;
    K* keys = reinterpret_cast<K*>(pSrcDst);
    for (Qsp64s i = 0; i < len; ++i) keys[i] = Map::toKey(keys[i]);
    introsort::sort(keys, len, [](K a, K b) { return a < b; });
    for (Qsp64s i = 0; i < len; ++i) keys[i] = Map::fromKey(keys[i]);
}

// Bytes: 256 counters on the stack, then every value as often as counted.
template <Order O>
void ownsSortCount(Qsp8u* pSrcDst, Qsp64s len)
{
    Qsp64s count[256] = {};
    for (Qsp64s i = 0; i < len; ++i) ++count[pSrcDst[i]];
    Qsp8u* out = pSrcDst;
    for (int j = 0; j < 256; ++j) {
        const int v = O == Order::Ascend ? j : 255 - j;
        for (Qsp64s n = count[v]; n > 0; --n) *out++ = Qsp8u(v);
    }
}

template <class Map, class T>
QspStatus sortKeys(T* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrcDst)) return s;
    ownsSortKeys<Map>(pSrcDst, len);
    return qspStsOk;
}

template <class Map, class T>
QspStatus sortKeysL(T* pSrcDst, Qsp64s len)
{
    if (QspStatus s = check::vectorsL(len, pSrcDst)) return s;
    ownsSortKeys<Map>(pSrcDst, len);
    return qspStsOk;
}

template <Order O>
QspStatus sortCount(Qsp8u* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrcDst)) return s;
    ownsSortCount<O>(pSrcDst, len);
    return qspStsOk;
}


}  // namespace

QspStatus qspsSortAscend_8u_I(Qsp8u* pSrcDst, int len) { return sortCount<Order::Ascend>(pSrcDst, len); }
QspStatus qspsSortAscend_16u_I(Qsp16u* pSrcDst, int len) { return sortKeys<keys::UnsignedUp>(pSrcDst, len); }
QspStatus qspsSortAscend_16s_I(Qsp16s* pSrcDst, int len) { return sortKeys<keys::SignedUp>(pSrcDst, len); }
QspStatus qspsSortAscend_32s_I(Qsp32s* pSrcDst, int len) { return sortKeys<keys::SignedUp>(pSrcDst, len); }
QspStatus qspsSortAscend_32f_I(Qsp32f* pSrcDst, int len) { return sortKeys<keys::FloatUp>(pSrcDst, len); }
QspStatus qspsSortAscend_64s_I(Qsp64s* pSrcDst, int len) { return sortKeys<keys::SignedUp>(pSrcDst, len); }
QspStatus qspsSortAscend_64f_I(Qsp64f* pSrcDst, int len) { return sortKeys<keys::FloatUp>(pSrcDst, len); }
QspStatus qspsSortAscend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len) { return sortKeysL<keys::SignedUp>(pSrcDst, len); }
QspStatus qspsSortAscend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len) { return sortKeysL<keys::FloatUp>(pSrcDst, len); }
QspStatus qspsSortAscend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len) { return sortKeysL<keys::FloatUp>(pSrcDst, len); }

QspStatus qspsSortDescend_8u_I(Qsp8u* pSrcDst, int len) { return sortCount<Order::Descend>(pSrcDst, len); }
QspStatus qspsSortDescend_16u_I(Qsp16u* pSrcDst, int len) { return sortKeys<keys::UnsignedDown>(pSrcDst, len); }
QspStatus qspsSortDescend_16s_I(Qsp16s* pSrcDst, int len) { return sortKeys<keys::SignedDown>(pSrcDst, len); }
QspStatus qspsSortDescend_32s_I(Qsp32s* pSrcDst, int len) { return sortKeys<keys::SignedDown>(pSrcDst, len); }
QspStatus qspsSortDescend_32f_I(Qsp32f* pSrcDst, int len) { return sortKeys<keys::FloatDown>(pSrcDst, len); }
QspStatus qspsSortDescend_64s_I(Qsp64s* pSrcDst, int len) { return sortKeys<keys::SignedDown>(pSrcDst, len); }
QspStatus qspsSortDescend_64f_I(Qsp64f* pSrcDst, int len) { return sortKeys<keys::FloatDown>(pSrcDst, len); }
QspStatus qspsSortDescend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len) { return sortKeysL<keys::SignedDown>(pSrcDst, len); }
QspStatus qspsSortDescend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len) { return sortKeysL<keys::FloatDown>(pSrcDst, len); }
QspStatus qspsSortDescend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len) { return sortKeysL<keys::FloatDown>(pSrcDst, len); }

}  // namespace y8
