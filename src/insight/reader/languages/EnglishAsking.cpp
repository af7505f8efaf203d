#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::english_words {

namespace {

constexpr WordRow kAsking[] = {
    {Sense::filler,
     "i need to know,i want to know,i would like to know,i'd like to know,id like to know,we need to "
     "know,just want to know,just wanted to know,"
     "a message,a message that,a message saying,a message that says,a warning,a warning that,a warning "
     "saying,a warning that says,a popup,a popup that,a popup saying,a pop-up,a notification,a notification "
     "that,an alert,an alert that,an error,an error that,an error saying,error message,error message "
     "saying,keep getting,keeps telling me,ubuntu keeps telling me,linux keeps telling me,"
     "system keeps telling me,the system keeps telling me,it keeps telling me,keeps saying,it keeps "
     "saying,keeps warning me,tells me,tells me that,is telling "
     "me,is telling me that,warns me,warns me that,system says,the system says,the system tells me,ubuntu "
     "says,linux says,computer says,my computer says,my computer says that,laptop says,my laptop says,my pc "
     "says,it says,says that,saying that"},
    {Sense::filler,
     "i took,i shot,i photographed,i filmed,i have taken,i've taken,taken by "
     "me,getting,hardly,barely,scarcely,somehow,anyhow,to run,to work,completely,totally,fully,another,with "
     "this "
     "program,with this app,with "
     "this tool,with this thing,with this software,in this "
     "program,in "
     "this "
     "app,in this tool,by this program,by this app,using this program,using this app,this program,this "
     "app,this "
     "tool,this thing,this software,at this rate,at this pace,at the current rate,at the current pace,at the "
     "present rate,at the present pace,if this goes on,if it goes on like this,if i go on like "
     "this,slice,slice of the chart,part of the chart,section of the chart,segment of the "
     "chart,slice of the pie,bar of the chart,of the chart,of the graph,of the pie chart,in the pie "
     "chart,in ages,for ages,in forever,in a long time,for a long time,in a long while,for so long,as a "
     "journalist,as a student,as a beginner,as a teacher,as a photographer,as a gamer,as a musician,as a "
     "lawyer,as an artist,in the "
     "storage breakdown,in the breakdown,in your breakdown,in the overview,in the chart,in the graph,in the "
     "storage view,in the storage overview,on this computer,on this machine,on this pc,on this laptop,on the "
     "computer,in one sweep,after that,afterwards,biggest first,largest first,the biggest first,the largest "
     "first,biggest on top,largest on top"},
    {Sense::ruleOut, "exclude a folder,exclude a file,exclude folders,exclude my,exclude something,how do i "
                     "exclude,how to exclude,how can i exclude,whitelist,add an exclusion,add "
                     "exclusion,exclusions,exclusion list,exception list,add an exception,never scan,do not "
                     "scan,dont scan,stop scanning,never suggest,stop suggesting,never touch my,ignore a "
                     "folder forever,ignore list,leave out of the scan,keep out of the scan,skip a folder"},
    {Sense::self,
     "questions can i ask,questions can i ask you,which "
     "questions can i ask,what sort of questions can i ask,what else can i ask,what can you do,what can you "
     "tell me,what do you know,what can i ask,what can i ask you,what questions "
     "can i ask,who are you,what are you,help,help me,how does this work,how do you work,what is orlen,what "
     "does orlen do,hello,hi,hey,good morning,good evening,thanks,thank you,thx,what is this program,what "
     "does this program do,how do i use this,how do i use orlen,what can orlen do,what can orlen do for "
     "me,what can you do for me,how can you help,how can you help me,what are you able to do,what is this "
     "app,what does this app do"},
    {Sense::installed, "installed,is installed,have installed,got installed"},
    {Sense::advise, "recommend,recommended,suggest,suggested,suggestion,suggestions,recommendation,"
                    "recommendations,advise,advice,start with,begin with,get started,should start,do "
                    "first,best way,easiest way,what now,start cleaning,start cleaning up,start "
                    "tidying,start deleting,begin cleaning,low-hanging fruit,quick wins,worth deleting,worth "
                    "removing,what to do,what do i do,what do i do now,what should i do,what can i do,what "
                    "can i do about it,what to do now,what shall i do,do about it,tips,get it smaller"},
    {Sense::trust,
     "trust,trustworthy,is orlen safe,reliable,is this safe to use,is orlen legit,at risk,in danger,in good "
     "hands,safe with you,safe with orlen,safe here,can i rely,rely on,open source"},
    {Sense::beyond,
     "virus,viruses,malware,spyware,trojan,faster,speed up,speeding "
     "up,slow,slower,performance,overclock,defragment,defrag,ram,cpu,processor,temperature,battery,password "
     "manager,firewall,antivirus,update my system,drivers,driver,registry,screen resolution,internet "
     "speed,graphics card,gpu,overheating,format,reformat,repartition,hack,hacked,virus "
     "scan,clone,benchmark,wifi password,volume up,bluetooth,printer,webcam,mouse pointer,temperature "
     "of,update linux,upgrade linux,install updates,bad sectors,disk health,smart "
     "status,encrypt,decrypt"},
    {Sense::happens,
     "where do the deleted things go,where do deleted things go,where do the deleted files go,where do the "
     "deleted items go,does it stay in the trash,emptied automatically,where do deleted items go,where do my "
     "deleted files go,where do my files go,where do the files go,where does it all go,only trash,only trash "
     "them,just trash,what happens,what will happen,what would happen,happen,happens,where do they go,where "
     "does it go,where do deleted files go,permanently,shred,shredding,shreds,securely delete,securely "
     "erase,secure delete,secure erase,forever,for good,gone for good,for "
     "ever,irreversible,irrevocably,break,breaks,harm,hurt,damage,crash,break anything,break "
     "something,breaking,destroy,consequences,by itself,by yourself,on its own,on your own,without "
     "asking,automatically,without my permission,regret,lost,be lost,losing,gone,really gone,gone "
     "forever,lost forever,still there,come back to life,what if i"},
    {Sense::ending, "text files,text file,plain text files,plain text file,txt files,txt file"},
    {Sense::only, "only,just the,just those,just,limit to,limited to,restrict to,nothing but"},
    {Sense::also,
     "and,also,plus,what about,how about,and what about,and how about,what of,as well as,&,and also,or"},
    {Sense::how, "how"},
    {Sense::general, "the rest,the remaining,the remaining ones,the others"},
    {Sense::backward,
     "it,them,they,that one,this one,those,these,ones,one,the one,it's,its,that's,they're,this,that,the "
     "ones,of them,of those,theirs,these ones,those ones,him"},
    {Sense::filler,
     "the deal with,deal with,whats up with,the story with,put,fine to know,went,at the "
     "moment,a,an,the,my,mine,our,your,i,me,we,you,is,are,was,were,be,been,am,do,does,did,have,has,had,will,"
     "would,"
     "of,on,to,for,at,by,please,pls,plz,there,so,now,right "
     "now,currently,today,tell,show,list,give,find,see,look,looking,get,know,want,wondering,really,actually,"
     "about,some,all,much,many,here,then,too,ever,still,already,exactly,approximately,roughly,named,called,"
     "orlen,with,w/"
     ",if,their,than,i've,i'm,i'd,kind,kinds,type,types,sort,like,let,let's,display,name,as,well,"
     "ok,okay,us,how,go,goes,going,lying around,sitting,stored,there's,quick,quickly,again,myself,can you "
     "tell me,can you show me,could you tell me,could you show me,do you know,i would like to know,i want to "
     "know,i wonder,curious,just curious,hmm,um,uh,oh,dear,kindly,gonna,wanna,want to,would like,i'd like "
     "to,like to,feel,think,guess,suppose,maybe,perhaps,basically,anyway,btw,lol,lot,lots,bunch,a lot "
     "of,tons,tons of,own,on here,in here,around,anywhere,somewhere,on it,which "
     "of,out,up,down,off,each,every,per,being,made,come,comes,bit,little,kinda,sorta,ya,u,ur,need to,have "
     "to,got,gotten,having,you've,you're,he,she,his,her,try,trying,both,whole,entire,entirely,specific,"
     "particular,certain,different,various,single,full list,list "
     "of,details,detail,information,info,question,answer,that are,that i,that is,which are,that have,that "
     "were,which were,that was,which is,which i,i can,we have,on my,in my own,happen to,supposed,currently "
     "have,belongs,belonging,contain,contains,containing,hold,holds,keep track,laying around,ago,via,using "
     "orlen,with orlen,in "
     "orlen,say,says,said,almost,nearly,near,enough,somebody,someone,anyone,anybody,people,everyone,friend,"
     "son,daughter,told,thought,hope,hear,heard,seems,seem,always,sometimes,usually,often,later,even,such,"
     "through,while,because,into,onto,along,simple,nice,great,cool,wow,wondered,ask,asking,check,checking,"
     "c,c:,together,whether,grandma,grandpa,granddaughter,grandson,fix,solve,exist,exists,noticed,understand,"
     "explain me,remind,therefore,though,although,instead,yet,per "
     "se,anything like,whatever,where exactly,on disk,really do,meanwhile,taken by,i have,i "
     "got,pretty,quite,very,such as,honestly,literally,super,actually do,us both,pls help,finally,once,each "
     "one,everywhere,anywhere at all,located "
     "on,im,ive,id,during,behind,against,among,across,towards,worried,worry,whose,upon,else's,whats up,pls "
     "can you,wonder,recently,thanks to,could i,sir,exact,minute,moment,hold on,lately,gig "
     "wise,whichever,these days,real,stuff like,sized,weird,strange,suddenly,oh no,ugh,damn,anywhere "
     "else,dunno,idk,im not sure,not sure,unsure,curious about,regarding,concerning,related,related to,size "
     "wise,by any chance,for me,to me,kids,grandchildren,way,ways,christmas eve,itself,done,doing,needs "
     "to,as well as that,person,ordinary,first of all,away,date,all of a sudden,percent,per "
     "cent,percentage,%,asap,as soon as possible,urgently,in one go,in percent,faster way,portion of,part "
     "of,share of,proportion of,fraction of,percentage of,out of it,out of that,out of this,for an "
     "update,for the update,for an upgrade,for the upgrade,for updates,you found,that you found,found,did "
     "you find,combined,in one,by any means,whatsoever,mean to,meant to,or so,or something,quickest "
     "way,fastest way,fast way,good way,obviously,definitely,currently available,generally,kind "
     "sir,buddy,mate,dude,bro,man,friendo,computer wise,here and there,i wonder if,wondering if,if "
     "possible,going forward,marvelous,thank you very much,in advance,real quick,real fast,a "
     "sec,hiya,heya,yo,overnight,last night,each file,as of late"},
    {Sense::negation, "not,don't,dont,doesn't,doesnt,didn't,isn't,aren't,can't,cant,cannot,shouldn't,mustn't,"
                      "never,won't,haven't,havent,hasn't,wasn't,weren't,no "
                      "longer,couldn't,wouldn't,ain't,wont,shouldnt,didnt,isnt,arent,wouldnt,couldnt,hasnt,"
                      "wasnt,aint,neither,nor,none,noone,no one"},
    {Sense::except,
     "that arent,which arent,that isnt,which isnt,not a,not an,not being,that is no,thats no,that's "
     "no,except,except for,besides,beside,other than,apart from,aside from,excluding,exclude,but not,not "
     "counting,leaving out,leave out,ignoring,ignore,and not,minus,without,anything but,everything but,all "
     "but,exempt,save for,not including,left out,with the exception of,barring,excepting,"
     "that aren't,that are not,which aren't,which are not,that isn't,but leave,leaving out "
     "my,w/o,sans,excl,without touching,without deleting,without removing,without losing,without moving,not "
     "touching,but "
     "not touch,but don't touch,but dont touch,but no,and no,with no,but keep,but keep my,leave my,leave "
     "the,but ignore,but skip,just not,only not,instead of,not any"},
    {Sense::yet, "but"},
    {Sense::outside, "outside of,outside,not in,not from,but not in,and not in"},
    {Sense::lasts,
     "last long,lasts,lasting,suffice,suffices,survive,survives,hold out,keep going,going to last,be "
     "enough,still fit,run dry,make it to,make it until,make it till,get me to,get through to,make it "
     "through,be okay until,be ok until,be fine until,good until,sufficient,be sufficient,holds out,carry "
     "on,will i have,will there be,will there still be,will i still have,going to be,gonna be,going to "
     "have,does it last,will it last,it last,enough to last,will we have"},
    {Sense::speed, "how fast,how quickly,how rapidly,growth rate,pace,at what rate,what rate,speed,per "
                   "day,per week,per month,each day,each week,each month,a day,a "
                   "week,daily,weekly,monthly,every day,every week,every month"},
    {Sense::what, "what,what's,whats,what is,what are,which,where,where is,where "
                  "are,where's,explain,describe,tell me about,who,what kind of,what sort of,what type "
                  "of,what else,are there,is there,do i have,have i got,any,got any,do you see,show me,list "
                  "all,show all,wheres,wich,wat,how come there are,have you found"},
    {Sense::howBig,
     "total of,the total of,the sum of,sum of,total for,how big,how large,how heavy,how huge,size of,the "
     "size,how much space do,how much space does,how much "
     "room do,how much room does,how much storage do,how much storage does,how much do,how much does,how "
     "many gb,how many gigabytes,how many gigs,how many mb,size,how much is in,how many bytes,weigh,how much "
     "space is taken by,how much space is used by,how much space are,big is,file size,total size of,how much "
     "disk space do,how much disk space does,hw big,sizes,how much memory does,how much memory do,how much "
     "gb,how bigg,what share,what part,what portion,what proportion,what percentage,what fraction,amount of "
     "space,space does,footprint of,footprint,weight of,how much data,how much is"},
    {Sense::howMany, "how many,count,number of,how often,amount of,how many times,how mny,howmany"},
    {Sense::can, "can,could,may,should,shall,must,need,is it safe to,is it ok to,is it okay to,safe to,ok "
                 "to,okay to,allowed to,possible to,able to,is it fine to,fine to,is it alright to,alright "
                 "to,ought,is it possible to,is it worth,do i need"},
    {Sense::makeRoom,
     "quickest way to get,fastest way to get,easiest way to get,best way to get,simplest way to get,could i "
     "free,can i free,could we free,could i get free,free up,make room,make space,make room for,make "
     "space for,clear "
     "up,reclaim,regain,gain,save,saved,freed,freeing,clear out,get back space,need to free,recover "
     "space,win,free some,make some room,make some space,more space,more room,get space,get more space,get "
     "more room,need space,need room,need more space,freeing up,need more room,create space,get rid of "
     "stuff,tidy up,tidy,tidying,declutter,get some space,need some space,save space,saving space,spare "
     "up,frees,freed "
     "up,space back,get some space back,get some room back,get back some space,get back some room,get some "
     "storage back,get some disk space back,get a bit of space back,get more space back,to free space,to "
     "free some space,to free disk space,to free some disk space,to free room,to free storage,find space,get "
     "space back,some space back,i need,want more space,get rid of "
     "things,smaller footprint,slim down,gain space,a way to get,want to free,want back,less "
     "full,emptier,lighten,way to get,need to find,must free,must make,want to make,have to free,have to "
     "make,room i could,gig back,gigs back,win back,claw back"},
    {Sense::make, "make,makes,get me,gimme,give me,find me,create"},
    {Sense::untouched,
     "never ever touch,never ever touched,never ever move,never ever moved,never ever remove,never ever "
     "change,will it touch,will you touch,does it touch,do you touch,would it touch,would you touch,"
     "refuse to delete,refuses to delete,refuse to touch,refuses to touch,refuse to move,refuses to "
     "move,will not delete,would never delete,would never touch,would you never delete,never touch,"
     "never touched,not touch,won't touch,will not touch,don't touch,never move,never delete,never "
     "deletes,never moves,not move,off limits,off-limits,leave alone,left alone,protected,protect,never "
     "remove,never removes,does not touch,doesn't touch,won't move,won't delete,untouched,protects,"
     "never be deleted,never be touched,never get deleted,doesn't move,doesn't delete,leaves alone,"
     "never ever delete,stay away from,hands off,allowed to touch,may touch,can touch,permitted to touch"},
    {Sense::cleanUp, "you (move|moved|put|send|sent|throw|threw) (to|in|into) the (trash|bin),went to the "
                     "trash,gone to the trash,sent to the trash,moved to the trash,put in the trash,what was "
                     "trashed,clean-up,cleanup,cleaning,clean up,cleaned up,cleaned,clean,cleans,tidied"},
    {Sense::uninstall,
     "remove an app,delete an app,remove an application,delete an application,remove a program,delete a "
     "program,uninstall,deinstall,uninstalling,uninstalled,remove the app,delete the app,remove "
     "the program,delete the program"},
    {Sense::remove,
     "any use,any use to me,of any "
     "use,binning,trashing,ditching,nuking,chucking,dumping,tossing,delete,deleted,deleting,deletes,remove,"
     "removed,removing,removes,erase,erased,throw away,throw out,get "
     "rid,get rid of,getting rid of,discard,drop,move,moved,wipe,dump,clear,cleared,ditch,bin it,trash "
     "it,move to the trash,purge,kill,empty,emptied,part with,live without,do without,chuck,toss,toss "
     "out,nuke,deletable,removable,del,thrown away,threw away,scrap,deletd,expendable,let go of,trashed,do "
     "away with,rm,take off,bin,don't need,dont need,do not need,no longer need,not needed,never need,don't "
     "want,dont want,no longer want,can go,may go,unneeded files,not need,throw,throwing,thrown,threw,should "
     "go,could go,has to go,must go,would go,trash the,trash my,trash all,trash this,trash that,trash "
     "these,trash some,useless,unnecessary,unneeded,junk,garbage,clutter,crap,superfluous,pointless "
     "files,dead weight,waste of space,rubbish files,shed,eliminate,sacrifice,do "
     "i not need,i can lose,can lose,can i lose,zap"},
    {Sense::undo,
     "reversible,undoable,can be undone,undo,restore,revert,put back,bring back,get "
     "back,recover,undelete,take back,roll back,undone,restored,reverse,restoring,recovering,recovered,get "
     "it back,get them back,bring it back,bring them back,put it back,put them back,changed my mind,by "
     "mistake,by accident,accidentally,get my files back,undoing,rollback,want it back,want them back,come "
     "back,back,recoverable,retrievable,retrieve,regretted,resurrect,reinstate,return,returned,put "
     "everything back,oops,unmove,undid,reversed,rescue,salvage,unclean,wrong file,wrong files,shouldn't "
     "have deleted,get it all back"},
    {Sense::safe,
     "without losing anything,without losing anything important,without losing important "
     "files,without losing important stuff,without losing anything i need,without deleting anything "
     "important,without removing anything important,without touching anything "
     "important,safe,safely,harmless,dangerous,risky,safest,problem,problems,risk,risks,bad "
     "idea,trouble,without "
     "worrying,without thinking,without thinking about it,without thinking twice,without a second "
     "thought,without having to think,without looking,without checking,blindly,without worry,without "
     "risk,without problems,without a problem,without fear,without danger"},
    {Sense::review, "review"},
    {Sense::keep, "keep,kept,hang on to,hold on to,stay,stays,important,essential,necessary,worth "
                  "keeping,valuable,precious,hang onto"},
    {Sense::mean,
     "counted as,count as,counts as,counted under,included in,count towards,mean,means,meaning,stand "
     "for,stands for,difference between,the "
     "difference,ratings,rating,rated,meant,colours,colors,labels,rate,rates,difference,categorise,"
     "definition,rules,rule,criteria,decide,judge,classified,classify,label,marked,labelled,labeled,tagged,"
     "flagged,classed,what's a,definition of,describe the,categories mean,have to review,need to review,must "
     "review,must i review,should i review,do i review,the difference between"},
    {Sense::soFar,
     "did i ever clean,have i ever cleaned,did i ever clean up,have i ever cleaned up,did you ever "
     "clean,have you ever cleaned,so far,all time,all-time,ever freed,until now,up to now,to date,"
     "over time,already "
     "freed,history,in the past,over the years,ever cleaned,since the beginning,since i started,"
     "cleanups,clean-ups,cleanings,clean ups,past clean-ups,previous clean-ups,past cleanups,my "
     "clean-ups,my cleanups,ever done,all my cleanups,all my clean-ups,log of cleanups,before today"},
    {Sense::used,
     "occupied,taken,in use,used up,how full,consumed,filled up so far,space used,usage,disk usage,space "
     "usage,storage usage,filled,portion used,taken up,eaten,gobbled up,percent full,percentage full,% full"},
    {Sense::handled, "used,accessed"},
    {Sense::opened,
     "opened,touched,open,touch,looked at,watched,viewed,read,watch,viewing,listen,listened,seen,saw"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "with their data,with its data,with data,including data,including their data,including "
                    "its data,data included"},
};

} // namespace

std::span<const WordRow> asking()
{
    return kAsking;
}

} // namespace orlen::AskReader::english_words
