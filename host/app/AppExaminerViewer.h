#pragma once

#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>

#include <set>

/**
 * SoQt's examiner viewer, which reports each error that OpenGL has noted while a frame was drawn as
 * an SoGLError. An error that comes with every frame is reported once, and again only after a frame
 * without it.
 */
class AppExaminerViewer : public SoQtExaminerViewer
{
public:
    using SoQtExaminerViewer::SoQtExaminerViewer;

protected:
    void actualRedraw() override;

private:
    std::set<unsigned> m_errors; ///< of the last frame
};
