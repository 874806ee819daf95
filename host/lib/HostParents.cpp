#include "lib/HostParents.h"

#include <Inventor/lists/SoAuditorList.h>
#include <Inventor/misc/SoBase.h>
#include <Inventor/nodes/SoNode.h>

#include <cstdint>
#include <cstring>

namespace {

/**
 * SoBase::getAuditors(), the way to ask for them, crashes in Coin 4.0 on every object: it hands its
 * list over wrongly. The tree that it would have read is private; an explicit instantiation is the
 * one place where the language lets a private member be named.
 */
template <class Tag, typename Tag::Member member>
struct Reveal
{
    friend typename Tag::Member revealed(Tag) { return member; }
};

struct AuditorTree
{
    using Member = cc_rbptree SoBase::*;
    friend Member revealed(AuditorTree);
};

template struct Reveal<AuditorTree, &SoBase::auditortree>;

struct Tally
{
    const void* except;
    int count;
};

void tally(void* auditor, void* type, void* closure)
{
    Tally& result = *static_cast<Tally*>(closure);
    // Coin keeps the enumerator in the pointer.
    std::uintptr_t kind = 0;
    std::memcpy(&kind, &type, sizeof(kind));
    const bool isParent = kind == SoNotRec::PARENT;
    if (isParent && auditor != result.except)
        ++result.count;
}

} // namespace

int HostParents::count(const SoNode& node, const SoNode* except)
{
    Tally result{except, 0};
    cc_rbptree_traverse(&(node.*revealed(AuditorTree())), tally, &result);
    return result.count;
}
