#include "disk/DiskAtCut.h"

#include <QRandomGenerator>

#include <algorithm>

namespace {
constexpr qsizetype Sector = 512;
constexpr int Quarters = 4;

bool IsOf(const DiskStep& step, int file) {
    switch (step.kind) {
    case DiskStep::Write:
    case DiskStep::Resize:
        return step.file == file;
    case DiskStep::Enter:
        return step.to.folder == file;
    case DiskStep::Leave:
        return step.from.folder == file;
    case DiskStep::Move:
        return step.from.folder == file || step.to.folder == file;
    default:
        return false;
    }
}

bool IsOfAName(const DiskStep& step) {
    return step.kind == DiskStep::Enter || step.kind == DiskStep::Leave ||
           step.kind == DiskStep::Move;
}

/// Sectors have fixed places in the file.
std::vector<DiskStep> InSectors(const DiskStep& write) {
    std::vector<DiskStep> sectors;
    for (qsizetype done = 0; done < write.bytes.size();) {
        DiskStep part = write;
        part.at = write.at + done;
        part.bytes = write.bytes.mid(done, Sector - part.at % Sector);
        done += part.bytes.size();
        sectors.push_back(std::move(part));
    }
    return sectors;
}

/// What is lost of one cut is a matter of luck; how much of it, too.
class Luck {
public:
    explicit Luck(QRandomGenerator& random)
        : random_(random)
        , kept_(random.bounded(Quarters + 1))
        , torn_(Coin())
        , reordered_(Coin())
        , grown_(Coin()) {}

    bool Keeps() { return random_.bounded(Quarters) < kept_; }
    bool Grows() { return grown_ && Coin(); }
    std::vector<DiskStep> Parts(const DiskStep& step) const {
        return torn_ && step.kind == DiskStep::Write ? InSectors(step) : std::vector{step};
    }
    void Order(std::vector<DiskStep>& steps) {
        if (reordered_)
            std::ranges::shuffle(steps, random_);
    }
    void Garble(QByteArray& bytes) {
        for (char& byte : bytes)
            byte = char(random_.generate());
    }

private:
    bool Coin() { return random_.bounded(2) == 0; }

    QRandomGenerator& random_;
    int kept_;
    bool torn_;
    bool reordered_;
    bool grown_;
};

/// What reaches the disk of a step that is not kept: nothing, or the length alone.
void Lose(DiskImage& image, DiskStep step, Luck& luck) {
    if (step.kind != DiskStep::Write || step.at < image.LengthOf(step.file) || !luck.Grows())
        return;
    luck.Garble(step.bytes);
    image.Apply(step);
}
} // namespace

void DiskAtCut::Take(const DiskStep& step) {
    if (step.kind != DiskStep::Sync)
        return unsafe_.push_back(step);
    for (const DiskStep& one : unsafe_)
        if (IsOf(one, step.file))
            safe_.Apply(one);
    std::erase_if(unsafe_, [&](const DiskStep& one) { return IsOf(one, step.file); });
}

DiskImage DiskAtCut::AfterKill() const {
    DiskImage image = safe_;
    for (const DiskStep& step : unsafe_)
        image.Apply(step);
    return image;
}

DiskImage DiskAtCut::AfterCut(QRandomGenerator& random) const {
    Luck luck(random);
    DiskImage image = safe_;
    std::vector<DiskStep> parts;
    for (const DiskStep& step : unsafe_)
        if (!IsOfAName(step))
            std::ranges::copy(luck.Parts(step), std::back_inserter(parts));
        else if (luck.Keeps())
            image.Apply(step);
    luck.Order(parts);
    for (DiskStep& part : parts)
        luck.Keeps() ? image.Apply(part) : Lose(image, std::move(part), luck);
    return image;
}
