#pragma once

/*! Which kind of template a default names for a page. */
enum PvDefaultTemplateType {
    PvDefaultTemplateTypeLayout = 0,
    PvDefaultTemplateTypeBackground = 1,
    PvDefaultTemplateTypeDesign = 2,
};
