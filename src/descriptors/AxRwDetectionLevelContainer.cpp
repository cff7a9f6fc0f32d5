#include "AxRwDetectionLevelContainer.h"

AxRwDetectionLevelContainer::AxRwDetectionLevelContainer(AxSymbolString name, AxReaderWriterRegistry* parent)
    : AxRecordOf(name, parent)
{
    myDetectionTableFile.setContent(&myDetectionTable);
}

AxRwDetectionLevelContainer::AxRwDetectionLevelContainer(AxKeyword const& keyword, AxReaderWriterRegistry* parent)
    : AxRecordOf(keyword, parent)
{
    myDetectionTableFile.setContent(&myDetectionTable);
}

AxRwDetectionLevelContainer::~AxRwDetectionLevelContainer() = default;

AxDetectionLevel AxRwDetectionLevelContainer::level(double signal) const
{
    if (myLevelThresholds.empty())
    {
        return signal > 0.0 ? AxDetectionLevel::Identified : AxDetectionLevel::None;
    }
    for (AxDetectionLevel const level : {AxDetectionLevel::Identified, AxDetectionLevel::Recognized,
                                         AxDetectionLevel::Classified, AxDetectionLevel::Detected})
    {
        AxString const word = axDetectionLevelWord(level);
        if (myLevelThresholds.contains(word) && myLevelThresholds.get(word) <= signal)
        {
            return level;
        }
    }
    return AxDetectionLevel::None;
}
