#include "lib/HostSceneWriter.h"

#include "lib/HostFullPath.h"
#include "lib/HostText.h"

#include <Inventor/SoOutput.h>
#include <Inventor/SoPath.h>
#include <Inventor/VRMLnodes/SoVRMLGroup.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/actions/SoToVRML2Action.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoGroup.h>

#include <cstdlib>

namespace {

const char s_inventorHeader[] = "#Inventor V2.1 ascii";
const char s_vrmlHeader[] = "#VRML V2.0 utf8";
const size_t s_firstSize = 65536;

/** Writes its children side by side without itself, so that they can share nodes in the file. */
class FileBody : public SoGroup
{
public:
    void write(SoWriteAction* action) override { getChildren()->traverse(action); }

protected:
    ~FileBody() override = default;
};

QByteArray bytesOf(SoNode& node, const char* header)
{
    SoOutput output;
    output.setHeaderString(header);
    output.setBuffer(std::malloc(s_firstSize), s_firstSize, std::realloc);
    SoWriteAction action(&output);
    action.apply(&node);
    void* buffer = nullptr;
    size_t size = 0;
    output.getBuffer(buffer, size);
    QByteArray bytes(static_cast<const char*>(buffer), int(size));
    std::free(buffer);
    return bytes;
}

bool isVrml(const SoNode& node)
{
    return HostText::fromCoin(node.getTypeId().getName()).startsWith(QLatin1String("VRML"));
}

/** Whether everything below the root is VRML already. */
bool isAllVrml(SoGroup& root)
{
    SoSearchAction search;
    search.setInterest(SoSearchAction::ALL);
    search.setType(SoNode::getClassTypeId());
    search.setSearchingAll(TRUE);
    search.apply(&root);
    const SoPathList& paths = search.getPaths();
    for (int i = 0; i < paths.getLength(); ++i) {
        const SoNode* node = HostFullPath::tail(*paths[i]);
        if (node != &root && !isVrml(*node))
            return false;
    }
    return true;
}

} // namespace

QByteArray HostSceneWriter::write(SoGroup& root, const QString& path)
{
    const bool vrml = path.endsWith(QLatin1String(".wrl"), Qt::CaseInsensitive);
    return vrml ? writeVrml(root) : writeInventor(root);
}

QByteArray HostSceneWriter::writeInventor(SoGroup& root)
{
    return bytesOf(root, s_inventorHeader);
}

QByteArray HostSceneWriter::writeVrml(SoGroup& root)
{
    auto* body = new FileBody;
    body->ref();
    if (isAllVrml(root)) {
        // The separator that the reader puts around a VRML scene is no VRML.
        for (int i = 0; i < root.getNumChildren(); ++i)
            body->addChild(root.getChild(i));
    } else {
        SoToVRML2Action convert;
        convert.apply(&root);
        if (SoNode* converted = convert.getVRML2SceneGraph())
            body->addChild(converted);
    }
    QByteArray bytes = bytesOf(*body, s_vrmlHeader);
    body->unref();
    return bytes;
}
