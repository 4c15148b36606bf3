// SPDX-License-Identifier: BSD-3-Clause
// SortIndexAscend, SortIndexDescend: sorts a vector in place and writes
// beside it the permutation, pDstIndx[j] = the original index of the value
// now at j; equal values keep their original order. No buffer: the index
// vector is sorted by (key of the value, index), then the values are moved
// along the permutation's cycles, the visited indices marked by their
// complement for the time of the walk.
#include "checks.h"
#include "introsort.h"
#include "qsp_validators.h"
#include "radix.h"

namespace y8 {
namespace {

using radix::Order;
namespace keys = radix::keys;

template <class Map, class T>
void ownsSortIndex(T* pSrcDst, int* pIndx, int len)
{
    using K = simd::Bits<T>;
    K* v = reinterpret_cast<K*>(pSrcDst);
    for (int i = 0; i < len; ++i) pIndx[i] = i;
    introsort::sort(pIndx, len, [v](int a, int b) {
        const K ka = Map::toKey(v[a]), kb = Map::toKey(v[b]);
        return ka < kb || (ka == kb && a < b);
    });
    // v[j] = old v[pIndx[j]], cycle by cycle.
    for (int j = 0; j < len; ++j) {
        if (pIndx[j] < 0) continue;
        const K first = v[j];
        int k = j;
        for (;;) {
            const int next = pIndx[k];
            pIndx[k] = ~next;
            if (next == j) {
                v[k] = first;
                break;
            }
            v[k] = v[next];
            k = next;
        }
    }
    for (int j = 0; j < len; ++j) pIndx[j] = ~pIndx[j];
}

template <class Map, class T>
QspStatus sortIndex(T* pSrcDst, int* pDstIndx, int len)
{
    if (QspStatus s = check::vectors(len, pSrcDst, pDstIndx)) return s;
    ownsSortIndex<Map>(pSrcDst, pDstIndx, len);
    return qspStsOk;
}


}  // namespace

QspStatus qspsSortIndexAscend_8u_I(Qsp8u* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::UnsignedUp>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexAscend_16u_I(Qsp16u* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::UnsignedUp>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexAscend_16s_I(Qsp16s* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::SignedUp>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexAscend_32s_I(Qsp32s* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::SignedUp>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexAscend_32f_I(Qsp32f* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::FloatUp>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexAscend_64f_I(Qsp64f* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::FloatUp>(pSrcDst, pDstIndx, len); }

QspStatus qspsSortIndexDescend_8u_I(Qsp8u* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::UnsignedDown>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexDescend_16u_I(Qsp16u* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::UnsignedDown>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexDescend_16s_I(Qsp16s* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::SignedDown>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexDescend_32s_I(Qsp32s* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::SignedDown>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexDescend_32f_I(Qsp32f* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::FloatDown>(pSrcDst, pDstIndx, len); }
QspStatus qspsSortIndexDescend_64f_I(Qsp64f* pSrcDst, int* pDstIndx, int len) { return sortIndex<keys::FloatDown>(pSrcDst, pDstIndx, len); }

}  // namespace y8
