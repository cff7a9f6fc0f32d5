#include "AxComponentDescriptorFactoryEntry.h"
#include "AxRecursiveReaderWriterIterator.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwUnsigned.h"
#include "src/objparams/RecordFixture.h"

#include <cmath>
#include <limits>

namespace
{
/// One value of each kind that no good host gives.
struct Hostile
{
    double real;
    int whole;
    unsigned count;
    std::string text;
};

std::vector<Hostile> hostileValues()
{
    using Real = std::numeric_limits<double>;
    using Whole = std::numeric_limits<int>;
    return {{Real::quiet_NaN(), Whole::min(), 0, ""},
            {Real::infinity(), Whole::max(), std::numeric_limits<unsigned>::max(), std::string(100000, 'x')},
            {-Real::infinity(), -1, 1, "quote \" back\\slash (list) ; no comment\nline\ttab"},
            {Real::max(), 0x7FFF, 2, "$(no-such-variable) $(unclosed $$"},
            {Real::denorm_min(), -0x8000, 3, "\x01\x7F \xFF\xFE not UTF-8 \xC3"},
            {-0.0, 0, 4, " \t "}};
}

bool isSame(double one, double other)
{
    return std::isnan(one) ? std::isnan(other) : one == other && std::signbit(one) == std::signbit(other);
}

/// Keywords of the members that do not hold the value.
std::string othersThan(Hostile const& hostile, AxReaderWriter& record)
{
    std::string others;
    AxRecursiveReaderWriterIterator walk(*record.registry());
    for (AxReaderWriter* rw = walk.first(); rw; rw = walk.next())
    {
        auto const* const real = dynamic_cast<AxRwReal*>(rw);
        auto const* const whole = dynamic_cast<AxRwInt*>(rw);
        auto const* const unsign = dynamic_cast<AxRwUnsigned*>(rw);
        auto const* const text = dynamic_cast<AxRwString*>(rw);
        bool const holds = real     ? isSame(real->value(), hostile.real)
                           : whole  ? whole->value() == hostile.whole
                           : unsign ? unsign->value() == hostile.count
                           : text   ? text->value().string() == hostile.text
                                    : true;
        others += holds ? "" : std::string(rw->name().c_str()) + ' ';
    }
    return others;
}

/// How many members took a value.
int fill(AxReaderWriter& record, Hostile const& hostile)
{
    int count = 0;
    AxRecursiveReaderWriterIterator walk(*record.registry());
    for (AxReaderWriter* rw = walk.first(); rw; rw = walk.next(), ++count)
    {
        if (auto* const real = dynamic_cast<AxRwReal*>(rw))
        {
            *real = hostile.real;
        }
        else if (auto* const whole = dynamic_cast<AxRwInt*>(rw)) // the enumerations as well
        {
            *whole = hostile.whole;
        }
        else if (auto* const unsign = dynamic_cast<AxRwUnsigned*>(rw))
        {
            *unsign = hostile.count;
        }
        else if (auto* const text = dynamic_cast<AxRwString*>(rw))
        {
            *text = AxString(hostile.text);
        }
        else
        {
            --count;
        }
    }
    return count;
}

class HostileValues : public RecordFixture
{
protected:
    /// Fills one, writes it, reads the text into another.
    template <class Make>
    int hold(std::string const& type, Make const& make)
    {
        int count = 0;
        for (Hostile const& hostile : hostileValues())
        {
            SCOPED_TRACE(type + " with " + std::to_string(hostile.real));
            auto const one = make();
            auto const other = make();
            one->setName("one");
            other->setName("one");
            count += fill(*one, hostile);
            std::string const text = one->writtenText(true);
            EXPECT_TRUE(readFrom(*other, text)) << text;
            EXPECT_TRUE(other->writtenText(true) == text) << text.substr(0, 20000) << other->writtenText(true);
            std::unique_ptr<AxReaderWriter> copy;
            if constexpr (requires { one->clone("one", nullptr); })
            {
                copy.reset(one->clone("one", nullptr));
            }
            else
            {
                copy.reset(one->clone(nullptr));
            }
            EXPECT_TRUE(copy && copy->writtenText(true) == text);
            for (AxReaderWriter* const holder : {static_cast<AxReaderWriter*>(other.get()), copy.get()})
            {
                EXPECT_EQ(othersThan(hostile, *holder), "");
            }
            if (HasFailure())
            {
                break;
            }
        }
        return count;
    }
};
} // namespace

TEST_F(HostileValues, EveryMemberOfEveryRecordKeepsThem)
{
    int count = 0;
    for (AxString const& type : factory.typeNames())
    {
        count += hold(type.string(), [&] { return made(type.c_str()); });
    }
    EXPECT_GT(count, 1000);
}

TEST_F(HostileValues, EveryMemberOfEveryComponentKeepsThem)
{
    int count = 0;
    for (AxListItem const* item = components.first(); item; item = item->next())
    {
        AxString const type = static_cast<AxComponentDescriptorFactoryEntry*>(item->data())->typeToCreate();
        count += hold(type.string(), [&]
                      { return std::unique_ptr<AxComponentDescriptor>(components.createComponentDescriptor(type)); });
    }
    EXPECT_GT(count, 5000);
}
