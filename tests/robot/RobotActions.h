#ifndef TESTS_ROBOT_ROBOTACTIONS_H
#define TESTS_ROBOT_ROBOTACTIONS_H

#include <QString>

#include <functional>
#include <random>
#include <vector>

class QWidget;

/// The robot's dice: everything that it decides comes from here, so that a seed repeats a run.
class CDice
{
public:
    explicit CDice(unsigned int nSeed)
        : m_engine(nSeed)
    {}
    /// From 0 to nCount - 1; 0 where there is nothing to choose from.
    int Below(int nCount);
    /// True with a probability of one in nTimes.
    bool OnceIn(int nTimes) { return Below(nTimes) == 0; }

private:
    std::mt19937 m_engine;
};

/// One thing that an operator does to a window.
struct SRobotAction
{
    const char* szName;
    int nWeight; ///< how often it is done, beside the weights of the others
    void (*pDo)(CDice& dice, QWidget& window);
};

/// Everything that the robot can do to a window.
const std::vector<SRobotAction>& RobotActions();

/// Chooses by weight.
const SRobotAction& ChooseAction(CDice& dice);

/// Answers a file dialog: most often with Esc, else with a file of the current folder. The robot types no
/// paths, so that it writes nowhere else.
void AnswerFileDialog(CDice& dice, QWidget& dialog);

#endif // TESTS_ROBOT_ROBOTACTIONS_H
